#include "gallery/Options.h"

#include <QCommandLineParser>

#include <algorithm>

namespace gallery {

namespace {

std::optional<Options> Refuse(const QString& reason)
{
    qWarning("vantor-gallery: %s", qPrintable(reason));
    return {};
}

/// "1280x3200", at most 10,000 in each direction.
QSize ReadSize(const QString& text)
{
    const QStringList sides = text.split('x');
    const QSize size = sides.size() == 2 ? QSize(sides[0].toInt(), sides[1].toInt()) : QSize();
    const bool fits =
        size.width() >= 320 && size.height() >= 240 && size.width() <= 10'000 && size.height() <= 10'000;
    return fits ? size : QSize();
}

} // namespace

QStringList SkinNames()
{
    return {"BlackRedSkin", "GreyRedSkin", "BlueSkin", "NeutralSkin"};
}

std::optional<Options> ReadOptions(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription("Shows every widget of the toolkit in every state.");
    parser.addHelpOption();
    parser.addOptions(
        {{"skin", "One of " + SkinNames().join(", ") + ".", "name", SkinNames().first()},
         {"language", "1 English, 2 Chinese, 3 German, 13 Hebrew, 34 Arabic.", "number", "1"},
         {"picture", "Writes a picture (PNG) and ends.", "file"},
         {"tree", "The resource tree instead of the widgets."},
         {"search", "What the resource tree is searched for.", "text"},
         {"size", "Size of the picture, such as 1280x900; the whole page unless given.", "WxH"}});
    if (!parser.parse(arguments))
        return Refuse(parser.errorText());
    if (parser.isSet("help"))
        parser.showHelp();
    Options options;
    options.skin = parser.value("skin");
    if (!SkinNames().contains(options.skin))
        return Refuse("no skin [" + options.skin + "]");
    options.language = parser.value("language").toInt();
    const std::vector<int>& languages = VantorGUIToolkit::allLanguages();
    if (std::find(languages.begin(), languages.end(), options.language) == languages.end())
        return Refuse("no language [" + parser.value("language") + "]");
    options.picture = parser.value("picture");
    options.tree = parser.isSet("tree");
    options.search = parser.value("search");
    options.size = ReadSize(parser.value("size"));
    if (parser.isSet("size") && !options.size.isValid())
        return Refuse("no size [" + parser.value("size") + "]");
    return options;
}

} // namespace gallery
