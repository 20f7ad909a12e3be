#pragma once

#include "VantorGUIToolkit/Gallery/GalleryPage.h"
#include "support/PointerAndKeys.h"

#include <QString>

/// The gallery once more, in the test's own process, without a screen: tells where its widgets are on a page
/// of the same size, skin and language. Made while no other lives.
class GalleryModel
{
public:
    using Area = PointerAndKeys::Area;

    /// page: where the page lies on the screen. scale: device pixels of a pixel of the layout.
    explicit GalleryModel(const Area& page, const QString& skin = "BlackRedSkin", int language = 1,
                          double scale = 1);
    ~GalleryModel();

    /// A widget's place on the screen; a test failure where the user would have to scroll to it.
    Area Of(const QString& widget) const;

    /// A role's colour of the skin, as in a picture of the screen.
    std::uint32_t Colour(const QString& role) const;

private:
    const Area m_area;
    const double m_scale;
    std::unique_ptr<VantorGUIToolkit::CGalleryPage> m_page;
};
