#include "gallery/GalleryWindow.h"
#include "gallery/Options.h"

#include "VantorGUIToolkit/Gallery/GalleryPage.h"
#include "VantorGUIToolkit/SkinLoader.h"
#include "VantorGUIToolkit/Toolkit.h"

#include <QApplication>
#include <QDir>
#include <QLayout>

namespace {

QSize WholePage(const QWidget& page)
{
    constexpr int width = 1280;
    const QWidget* content = page.findChild<QWidget*>("galleryContent");
    content->layout()->activate();
    const int height = content->layout()->hasHeightForWidth() ? content->layout()->totalHeightForWidth(width)
                                                              : content->sizeHint().height();
    return {width, height};
}

/// 0 when the picture is written.
int WritePicture(const gallery::Options& options)
{
    VantorGUIToolkit::takeLook(VantorGUIToolkit::toolkit(), options.skin, options.language);
    VantorGUIToolkit::CGalleryPage page;
    page.resize(options.size.isValid() ? options.size : WholePage(page));
    page.show();
    QApplication::processEvents();
    if (page.grab().save(options.picture, "PNG"))
        return 0;
    qWarning("vantor-gallery: cannot write %s", qPrintable(options.picture));
    return 1;
}

} // namespace

int main(int argc, char** argv)
{
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication application(argc, argv);
    QApplication::addLibraryPath(QDir::cleanPath(QApplication::applicationDirPath() + "/../plugins"));
    const std::optional<gallery::Options> options = gallery::ReadOptions(application.arguments());
    if (!options)
        return 2;
    if (!options->picture.isEmpty())
        return WritePicture(*options);
    gallery::GalleryWindow window(*options);
    window.show();
    return application.exec();
}
