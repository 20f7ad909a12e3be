#pragma once

#include <QString>

#include <vector>

namespace VantorGUIToolkit {

/// The numbers by which framework and components name the user-interface language. 13 and 34 are the
/// languages written from right to left. A number that is not listed is served in English.
enum Language : int {
    English = 1,
    Chinese = 2,
    German = 3,
    Hebrew = 13,
    Arabic = 34,
};

/// Every language of the list above.
const std::vector<int>& allLanguages();

/// The language's tag as file names and QLocale have it: "en", "zh_CN", "de", "he", "ar".
QString languageTag(int language);

bool isRightToLeft(int language);

} // namespace VantorGUIToolkit
