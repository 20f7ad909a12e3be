#include "system/GalleryModel.h"

#include "VantorGUIToolkit/SkinLoader.h"
#include "VantorGUIToolkit/Toolkit.h"

#include <gtest/gtest.h>

#include <QApplication>

using namespace VantorGUIToolkit;

GalleryModel::GalleryModel(const Area& page, const QString& skin, int language, double scale)
    : m_area(page), m_scale(scale)
{
    CToolkit& kit = toolkit();
    QCoreApplication::addLibraryPath(BUILT_PRODUCT "plugins");
    kit.setTargetPath(BUILT_PRODUCT "bin/");
    EXPECT_TRUE(takeLook(kit, skin, language));
    m_page = std::make_unique<CGalleryPage>();
    m_page->resize(qRound(page.width / scale), qRound(page.height / scale));
    m_page->show();
}

GalleryModel::~GalleryModel()
{
    m_page.reset();
    qApp->setStyleSheet({});
    QApplication::setLayoutDirection(Qt::LeftToRight);
    toolkit().UnInit();
}

GalleryModel::Area GalleryModel::Of(const QString& name) const
{
    const auto* widget = m_page->findChild<QWidget*>(name);
    if (!widget || widget->visibleRegion().boundingRect() != widget->rect()) {
        ADD_FAILURE() << name.toStdString() << " is not to be seen in the gallery";
        return m_area;
    }
    const QPointF place = QPointF(widget->mapTo(m_page.get(), QPoint())) * m_scale;
    return {m_area.x + qRound(place.x()), m_area.y + qRound(place.y()), qRound(widget->width() * m_scale),
            qRound(widget->height() * m_scale)};
}

std::uint32_t GalleryModel::Colour(const QString& role) const
{
    return QColor(toolkit().handleQssByInputParams('@' + role + '@')).rgb() & RGB_MASK;
}
