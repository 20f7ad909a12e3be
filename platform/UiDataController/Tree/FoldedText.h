#pragma once

#include <QString>

#include <vector>

namespace UiDataController {

/// A text as it is searched: without case, accents, vowel points and compatibility forms, so that "Müller"
/// becomes "muller" and "Straße" "strasse". Never null. With origins, these get for each code unit of the
/// result the position in text that it comes from. Any thread.
QString foldedText(const QString& text, std::vector<int>* origins = nullptr);

/// Where in a text something is found; length 0 when it is not.
struct TextRange
{
    int start = 0;
    int length = 0;
};

/// The first place of text whose folded form is needle, which is folded already; marks that belong to its
/// last letter included.
TextRange findFolded(const QString& text, const QString& needle);

} // namespace UiDataController
