// SPDX-License-Identifier: MIT
#pragma once

#include "editor/scenario/scenariosource.h"

namespace TutorialEditor {

// Makes the values of a ScenarioSource.
class SourceParser {
public:
    explicit SourceParser(const QString& text);

    // Both return the index of the list of steps, -1 when there is none.
    int parseFile();
    int parsePasted();

    const SourceScanner& scanner() const { return mScanner; }
    QVector<SourceNode> takeNodes() { return std::move(mNodes); }

private:
    bool parseHead();
    void parseTail();
    int parseValue(bool isSteps);
    int parseArray(bool isSteps);
    int parseObject();
    int parseNumber();
    int parseWord();
    int parseOther();
    int parseText();
    void parseElements(int list, QChar close, bool isSteps);
    void parseMembers(int object, bool isOpened);
    bool parseKey(SourceNode* key);
    bool skipColon(const SourceNode& key);
    bool skipSeparator(int value);
    void skipSum(int value);
    bool isExtraBracket(QChar close, int previousEnd) const;
    void skipExtraBracket();
    void reportMissing(QChar bracket, int position);
    void reportLooseComma(int comma);
    bool enter();

    int addNode(SourceNode::Kind kind);
    void finish(int node) { mNodes[node].end = mScanner.position(); }
    void append(int parent, int* last, int child);

    SourceScanner mScanner;
    QVector<SourceNode> mNodes;
    int mDepth = 0;
    // One bracket that is missing makes others have no partner.
    bool mHasBracketProblem = false;
};

} // namespace TutorialEditor
