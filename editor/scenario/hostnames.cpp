// SPDX-License-Identifier: MIT
#include "editor/scenario/hostnames.h"

#include "editor/scenario/problem.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

using namespace TutorialEditor;

namespace {

// In the order of HostNames::List.
constexpr std::array<const char*, HostNames::ListCount> kKeys = {"windows", "actions", "lists",
    "combo boxes", "check boxes", "commands", "conditions", "targets"};

// How many characters have to be typed, taken out, exchanged or swapped with
// the next one to make one name of the other: the optimal string alignment
// distance.
int distance(const QString& a, const QString& b)
{
    QVector<int> beforeLast;
    QVector<int> last(b.size() + 1);
    for (int j = 0; j < last.size(); ++j)
        last[j] = j;
    for (int i = 1; i <= a.size(); ++i) {
        QVector<int> row(b.size() + 1);
        row[0] = i;
        for (int j = 1; j <= b.size(); ++j) {
            const bool isSame = a.at(i - 1) == b.at(j - 1);
            row[j] = std::min({last.at(j) + 1, row.at(j - 1) + 1, last.at(j - 1) + !isSame});
            if (i > 1 && j > 1 && a.at(i - 1) == b.at(j - 2) && a.at(i - 2) == b.at(j - 1))
                row[j] = std::min(row.at(j), beforeLast.at(j - 2) + 1);
        }
        beforeLast = last;
        last = row;
    }
    return last.last();
}

} // namespace

QString HostNames::nameOf(List list)
{
    return QLatin1String(kKeys[std::size_t(list)]);
}

std::optional<HostNames> HostNames::fromJson(const QByteArray& json, QString* error)
{
    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(json, &parseError);
    if (parseError.error != QJsonParseError::NoError || !document.isObject()) {
        *error = document.isNull() ? parseError.errorString() : Problem::tr("It is no JSON object");
        return {};
    }
    HostNames result;
    for (int list = 0; list < ListCount; ++list) {
        const QString key = nameOf(List(list));
        const QJsonValue value = document.object().value(key);
        if (value.isUndefined())
            continue;
        QStringList names;
        for (const QJsonValue& name : value.toArray())
            names << name.toString();
        if (!value.isArray() || names.contains(QString())) {
            *error = Problem::tr("“%1” is no list of names").arg(key);
            return {};
        }
        result.set(List(list), names);
    }
    return result;
}

QStringList HostNames::names(List list) const
{
    return isGiven(list) ? mLists[list]->values() : QStringList();
}

void HostNames::set(List list, const QStringList& names)
{
    QSet<QString> set;
    for (const QString& name : names)
        set.insert(name);
    mLists[list] = set;
}

QString TutorialEditor::nearestName(const QString& name, const QStringList& candidates)
{
    constexpr int kLongest = 100; // characters; names are shorter
    if (name.size() > kLongest)
        return QString();
    QString nearest;
    int least = name.size() > 5 ? 3 : 2; // less than this is near
    for (const QString& candidate : candidates) {
        if (candidate.compare(name, Qt::CaseInsensitive) == 0)
            return candidate;
        // A name of one letter is near to every other one.
        if (candidate.size() < 2 || qAbs(candidate.size() - name.size()) >= least)
            continue;
        const int far = distance(name, candidate);
        if (far < least && far < candidate.size() / 2 + 1) {
            least = far;
            nearest = candidate;
        }
    }
    return nearest;
}
