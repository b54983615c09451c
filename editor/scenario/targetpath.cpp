// SPDX-License-Identifier: MIT
#include "editor/scenario/targetpath.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>

using namespace TutorialEditor;

namespace {

const QLatin1String kAction("action:");
const QLatin1String kSpecial("/[]@");

// Reads from left to right, and remembers the first fault.
class Reader {
    Q_DECLARE_TR_FUNCTIONS(TutorialEditor::TargetPath)

public:
    explicit Reader(const QString& text) : mText(text) { }

    bool atEnd() const { return mAt >= mText.size(); }
    bool isGood() const { return mFault.isEmpty(); }
    // Nothing is left and nothing was wrong.
    bool isDone()
    {
        if (!atEnd())
            fail(tr("something stands behind its end"));
        return isGood();
    }
    const QString& fault() const { return mFault; }

    bool take(QChar wanted)
    {
        if (atEnd() || mText.at(mAt) != wanted)
            return false;
        ++mAt;
        return true;
    }

    bool take(QLatin1String wanted)
    {
        if (!QStringView(mText).mid(mAt).startsWith(wanted))
            return false;
        mAt += wanted.size();
        return true;
    }

    void fail(const QString& fault)
    {
        if (isGood())
            mFault = fault;
        mAt = mText.size();
    }

    // A name or a text, up to the next character that means something.
    QString word(bool* quoted)
    {
        QString word;
        *quoted = take(QLatin1Char('"'));
        while (!atEnd()) {
            const QChar next = mText.at(mAt);
            if (*quoted ? next == QLatin1Char('"') : kSpecial.contains(next))
                break;
            ++mAt;
            if (next == QLatin1Char('\\')) {
                if (atEnd()) {
                    fail(tr("nothing follows the last “\\”"));
                    return {};
                }
                word += mText.at(mAt++);
            } else {
                word += next;
            }
        }
        if (*quoted && !take(QLatin1Char('"')))
            fail(tr("a quote is not closed"));
        return word;
    }

    QString name()
    {
        bool quoted = false;
        const QString name = word(&quoted);
        if (name.isEmpty())
            fail(tr("a name is missing"));
        return name;
    }

    TargetPath::Item item()
    {
        TargetPath::Item item;
        item.text = word(&item.quoted);
        if (!take(QLatin1Char(']')))
            fail(tr("a “[” has no “]”"));
        else if (item.text.isEmpty() && !item.quoted)
            fail(tr("nothing stands between “[” and “]”"));
        return item;
    }

    std::optional<QPointF> place()
    {
        const QStringList numbers = mText.mid(mAt).split(QLatin1Char(','));
        mAt = mText.size();
        const auto fraction = [&numbers](int index) {
            bool ok = false;
            const double value = numbers.value(index).toDouble(&ok);
            return ok && value >= 0 && value <= 1 ? value : -1;
        };
        const QPointF place(fraction(0), fraction(1));
        if (numbers.size() == 2 && place.x() >= 0 && place.y() >= 0)
            return place;
        fail(tr("behind “@” stand two numbers from 0 to 1, with a comma between them"));
        return {};
    }

private:
    const QString mText;
    int mAt = 0;
    QString mFault;
};

// The same word for Reader::word().
QString written(const QString& word, bool quoted)
{
    const bool isPlain = !quoted && !word.isEmpty() && !word.startsWith(kAction)
        && std::none_of(word.begin(), word.end(), [](QChar one) {
               return kSpecial.contains(one) || one == QLatin1Char('\\') || one == QLatin1Char('"');
           });
    if (isPlain)
        return word;
    QString text(QLatin1Char('"'));
    for (const QChar one : word) {
        if (one == QLatin1Char('\\') || one == QLatin1Char('"'))
            text += QLatin1Char('\\');
        text += one;
    }
    return text + QLatin1Char('"');
}

} // namespace

int TargetPath::Item::number() const
{
    const bool isNumber = !quoted && !text.isEmpty()
        && std::all_of(text.begin(), text.end(),
            [](QChar one) { return one >= QLatin1Char('0') && one <= QLatin1Char('9'); });
    bool ok = false;
    const int number = isNumber ? text.toInt(&ok) : -1;
    return ok ? number : -1;
}

TargetPath TargetPath::fromText(const QString& text)
{
    Reader reader(text);
    TargetPath path;
    if (reader.take(kAction)) {
        path.action = reader.name();
    } else {
        do {
            Segment segment;
            segment.name = reader.name();
            while (reader.isGood() && reader.take(QLatin1Char('[')))
                segment.items << reader.item();
            path.segments << segment;
        } while (reader.isGood() && reader.take(QLatin1Char('/')));
    }
    if (reader.isGood() && reader.take(QLatin1Char('@')))
        path.place = reader.place();
    if (reader.isDone())
        return path;
    TargetPath malformed;
    malformed.fault = reader.fault();
    return malformed;
}

QString TargetPath::toText() const
{
    QString text;
    if (!action.isEmpty())
        text = kAction + written(action, false);
    for (const Segment& segment : segments) {
        if (!text.isEmpty())
            text += QLatin1Char('/');
        text += written(segment.name, false);
        for (const Item& item : segment.items)
            text += QLatin1Char('[') + written(item.text, item.quoted) + QLatin1Char(']');
    }
    if (place)
        text += QStringLiteral("@%1,%2").arg(place->x(), 0, 'g', 4).arg(place->y(), 0, 'g', 4);
    return text;
}
