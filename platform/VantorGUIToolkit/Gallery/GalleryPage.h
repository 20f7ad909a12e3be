#pragma once

#include <QWidget>

namespace VantorGUIToolkit {

/// Every widget of the toolkit and of Qt in every state, on one page that scrolls: for the eye when a skin is
/// drawn, and for tests. The widgets work, and those that tests drive have object names, among them
///   galleryNameEdit    a line edit
///   galleryCombo       a combo box with a long list
///   galleryButton      counts its clicks in the label galleryClicks ("Clicks: 2")
///   galleryMenuButton  opens a menu with a sub-menu; the choice is shown by the label galleryChoice
class CGalleryPage : public QWidget
{
    Q_OBJECT

public:
    explicit CGalleryPage(QWidget* parent = nullptr);
};

} // namespace VantorGUIToolkit
