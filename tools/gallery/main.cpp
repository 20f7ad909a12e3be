#include "gallery/GalleryWindow.h"
#include "gallery/Options.h"
#include "gallery/TreePage.h"

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

std::unique_ptr<QWidget> MakePage(const gallery::Options& options)
{
    if (options.tree)
        return std::make_unique<gallery::TreePage>(options.search);
    return std::make_unique<VantorGUIToolkit::CGalleryPage>();
}

QSize SizeOf(const gallery::Options& options, const QWidget& page)
{
    if (options.size.isValid())
        return options.size;
    return options.tree ? QSize(1280, 900) : WholePage(page);
}

/// 0 when the picture is written.
int WritePicture(const gallery::Options& options)
{
    VantorGUIToolkit::takeLook(VantorGUIToolkit::toolkit(), options.skin, options.language);
    const std::unique_ptr<QWidget> page = MakePage(options);
    page->resize(SizeOf(options, *page));
    page->show();
    QApplication::processEvents();
    if (page->grab().save(options.picture, "PNG"))
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
