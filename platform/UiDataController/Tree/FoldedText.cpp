#include "UiDataController/Tree/FoldedText.h"

namespace UiDataController {

namespace {

bool IsMark(uint letter)
{
    return QChar::category(letter) == QChar::Mark_NonSpacing;
}

/// Folding leaves these as they are, although people take them for others: sharp s, dotless i.
bool IsSpecial(uint letter)
{
    return letter == 0xDF || letter == 0x131;
}

bool IsFolded(uint letter)
{
    return QChar::decompositionTag(letter) == QChar::NoDecomposition &&
           QChar::toCaseFolded(letter) == letter && !IsMark(letter) && !IsSpecial(letter);
}

/// A letter that is not its own folded form. Upper case makes two letters of sharp s.
QString FoldedLetter(const QString& letter)
{
    QString folded;
    const QString plain = letter.normalized(QString::NormalizationForm_KD).toUpper().toCaseFolded();
    for (const uint part : plain.toUcs4())
        if (!IsMark(part))
            folded += QString::fromUcs4(&part, 1);
    return folded;
}

void AppendFolded(QString& folded, const QString& text, int at, int length)
{
    const QChar first = text.at(at);
    const uint letter = length == 2 ? QChar::surrogateToUcs4(first, text.at(at + 1)) : first.unicode();
    if (letter < 0x80)
        folded += QChar(first.toLower());
    else if (IsFolded(letter))
        folded += text.midRef(at, length);
    else
        folded += FoldedLetter(text.mid(at, length));
}

} // namespace

QString foldedText(const QString& text, std::vector<int>* origins)
{
    QString folded("");
    folded.reserve(text.size());
    for (int at = 0; at < text.size();) {
        const bool isPair =
            text.at(at).isHighSurrogate() && at + 1 < text.size() && text.at(at + 1).isLowSurrogate();
        const int length = isPair ? 2 : 1;
        AppendFolded(folded, text, at, length);
        if (origins)
            origins->resize(std::size_t(folded.size()), at);
        at += length;
    }
    return folded;
}

TextRange findFolded(const QString& text, const QString& needle)
{
    std::vector<int> origins;
    const int found = needle.isEmpty() ? -1 : foldedText(text, &origins).indexOf(needle);
    if (found < 0)
        return {};
    const int start = origins[std::size_t(found)];
    const int last = origins[std::size_t(found + needle.size() - 1)];
    int end = last + (text.at(last).isHighSurrogate() ? 2 : 1);
    while (end < text.size() && IsMark(text.at(end).unicode()))
        ++end;
    return {start, std::min(end, text.size()) - start};
}

} // namespace UiDataController
