#include "gallery/GalleryWindow.h"

#include "gallery/TreePage.h"

#include "VantorGUIToolkit/Gallery/GalleryPage.h"
#include "VantorGUIToolkit/SkinLoader.h"
#include "VantorGUIToolkit/Toolkit.h"
#include "VantorGUIToolkit/Widgets/Dress.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QScreen>
#include <QTimer>
#include <QVBoxLayout>

namespace gallery {

using namespace VantorGUIToolkit;

GalleryWindow::GalleryWindow(const Options& options)
    : m_skin(options.skin), m_language(options.language), m_tree(options.tree), m_search(options.search)
{
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    Rebuild();
    resize(QSize(1280, 900).boundedTo(screen()->availableSize()));
}

// Texts, icons and directions are taken when a widget is made, so everything is made anew.
void GalleryWindow::Rebuild()
{
    takeLook(toolkit(), m_skin, m_language);
    setLocale(QLocale());
    delete m_content;
    m_content = new QWidget(this);
    auto* column = new QVBoxLayout(m_content);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(MakeBar());
    QWidget* page = nullptr;
    if (m_tree)
        page = new TreePage(m_search, m_content);
    else
        page = new CGalleryPage(m_content);
    column->addWidget(page, 1);
    setWindowTitle(page->windowTitle());
    layout()->addWidget(m_content);
}

QWidget* GalleryWindow::MakeBar()
{
    auto* bar = new QWidget(m_content);
    setSurface(bar, Surface::Bar);
    auto* skins = new QComboBox(bar);
    skins->setAccessibleName(tr("Skin"));
    skins->addItems(SkinNames());
    skins->setCurrentText(m_skin);
    auto* languages = new QComboBox(bar);
    languages->setAccessibleName(tr("Language"));
    for (const int language : allLanguages())
        languages->addItem(QLocale(languageTag(language)).nativeLanguageName(), language);
    languages->setCurrentIndex(languages->findData(m_language));
    auto* pages = new QComboBox(bar);
    pages->setAccessibleName(tr("Page"));
    pages->addItems({tr("Widgets"), tr("Resource tree")});
    pages->setCurrentIndex(m_tree ? 1 : 0);
    auto* row = new QHBoxLayout(bar);
    row->setContentsMargins(Grid::Wide, Grid::Small, Grid::Wide, Grid::Small);
    row->setSpacing(Grid::Medium);
    row->addWidget(pages);
    row->addWidget(skins);
    row->addWidget(languages);
    row->addStretch(1);
    QLabel* scale = makeLabel(tr("Scale: start again with QT_SCALE_FACTOR=1.5"), TextRole::Hint, bar);
    scale->setWordWrap(false);
    row->addWidget(scale);
    // Rebuilding takes the combo boxes away, which their signals may not see.
    const auto change = [this] { QTimer::singleShot(0, this, &GalleryWindow::Rebuild); };
    connect(skins, QOverload<int>::of(&QComboBox::activated), this, [=] {
        m_skin = skins->currentText();
        change();
    });
    connect(pages, QOverload<int>::of(&QComboBox::activated), this, [=](int page) {
        m_tree = page == 1;
        change();
    });
    connect(languages, QOverload<int>::of(&QComboBox::activated), this, [=] {
        m_language = languages->currentData().toInt();
        change();
    });
    return bar;
}

} // namespace gallery
