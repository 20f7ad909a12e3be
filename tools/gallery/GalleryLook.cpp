#include "gallery/GalleryLook.h"

#include "VantorGUIToolkit/SkinLoader.h"
#include "VantorGUIToolkit/Toolkit.h"

#include <QApplication>
#include <QPixmapCache>

namespace gallery {

void TakeLook(const QString& skin, int language)
{
    using namespace VantorGUIToolkit;
    CToolkit& look = toolkit();
    look.UnInit();
    QPixmapCache::clear(); // icons of two skins have the same names
    look.loadTranslations(look.targetPath() + "../translations/", language);
    look.setLocale(language);
    const Qt::LayoutDirection direction = isRightToLeft(language) ? Qt::RightToLeft : Qt::LeftToRight;
    look.setLayoutDirection(direction);
    QApplication::setLayoutDirection(direction);
    CSkinLoader loader(look);
    loader.LoadFont(language);
    loader.LoadSkin(skin);
    loader.SetStyle();
    loader.ApplySheets({});
}

} // namespace gallery
