#include "VantorGUIToolkit/Language.h"

#include <algorithm>

namespace VantorGUIToolkit {

namespace {

struct Row
{
    int language;
    const char* tag;
    bool rightToLeft;
};

constexpr Row kLanguages[] = {
    {English, "en", false}, {Chinese, "zh_CN", false}, {German, "de", false},
    {Hebrew, "he", true},   {Arabic, "ar", true},
};

const Row& RowOf(int language)
{
    const auto* row = std::find_if(std::begin(kLanguages), std::end(kLanguages),
                                   [&](const Row& candidate) { return candidate.language == language; });
    return row == std::end(kLanguages) ? kLanguages[0] : *row;
}

} // namespace

const std::vector<int>& allLanguages()
{
    static const std::vector<int> languages = [] {
        std::vector<int> numbers;
        for (const Row& row : kLanguages)
            numbers.push_back(row.language);
        return numbers;
    }();
    return languages;
}

QString languageTag(int language)
{
    return QString::fromLatin1(RowOf(language).tag);
}

bool isRightToLeft(int language)
{
    return RowOf(language).rightToLeft;
}

} // namespace VantorGUIToolkit
