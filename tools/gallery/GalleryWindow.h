#pragma once

#include "gallery/Options.h"

#include <QWidget>

namespace gallery {

/// The gallery with a bar to change skin and language, and to say how the scale is changed.
class GalleryWindow : public QWidget
{
    Q_OBJECT

public:
    explicit GalleryWindow(const Options& options);

private:
    void Rebuild();
    QWidget* MakeBar();

    QString m_skin;
    int m_language;
    bool m_tree; ///< the resource tree is shown
    const QString m_search;
    QWidget* m_content = nullptr;
};

} // namespace gallery
