#include "VantorGUIToolkit/Gallery/Sections.h"
#include "VantorGUIToolkit/Widgets/Badge.h"
#include "VantorGUIToolkit/Widgets/Banner.h"
#include "VantorGUIToolkit/Widgets/EmptyState.h"
#include "VantorGUIToolkit/Widgets/Notice.h"

#include <QLabel>
#include <QPushButton>

namespace VantorGUIToolkit {

namespace {

constexpr Tone kTones[] = {Tone::Ok, Tone::Warn, Tone::Error, Tone::Info, Tone::Idle};

} // namespace

CMessageSection::CMessageSection(QWidget* parent) : CGallerySection(tr("Texts and messages"), parent)
{
    AddTexts();
    AddBanners();
    AddNotices();
    AddEmptyState();
}

void CMessageSection::AddTexts()
{
    AddWide(makeLabel(tr("Title of a page"), TextRole::Title, this));
    AddWide(makeLabel(tr("Heading of a section"), TextRole::Heading, this));
    AddWide(makeLabel(tr("A sentence of plain text."), TextRole::Plain, this));
    AddWide(makeLabel(tr("A hint that helps with a field."), TextRole::Hint, this));
    AddWide(makeLabel(tr("What is wrong with a field."), TextRole::Error, this));
    const QString texts[] = {tr("Online"), tr("Weak signal"), tr("Offline"), tr("Recording"), tr("Unused")};
    QList<QWidget*> badges;
    for (const Tone tone : kTones)
        badges.append(new CBadge(texts[static_cast<int>(tone)], tone, this));
    AddCaption(tr("Badges"));
    AddRow(badges);
}

void CMessageSection::AddBanners()
{
    AddCaption(tr("Banners"));
    const QString texts[] = {tr("The settings are saved on all devices."),
                             tr("Less than 5 GB are free in the folder for recordings."),
                             tr("The storage server is not reached."), tr("A new version is available."),
                             tr("No schedule is active.")};
    for (const Tone tone : kTones) {
        auto* banner = new CBanner(texts[static_cast<int>(tone)], tone, this);
        if (tone == Tone::Error)
            banner->SetAction(tr("Try again"));
        AddWide(banner);
    }
}

void CMessageSection::AddNotices()
{
    const QString texts[] = {
        tr("Starting the broadcast succeeded."), tr("The picture is saved, but the folder is nearly full."),
        tr("The settings could not be written to three of the eight devices. Check that they "
           "are switched on and reachable in the network, then save once more."),
        tr("Camera 07 is connected again."), tr("Nothing was changed.")};
    const QString names[] = {tr("Success"), tr("Warning"), tr("Error"), tr("Information"), tr("Neutral")};
    QList<QWidget*> buttons;
    for (const Tone tone : kTones) {
        const int index = static_cast<int>(tone);
        QPushButton* button = makeButton(names[index], ButtonKind::Normal, this);
        button->setObjectName("galleryNotice-" + toneName(tone));
        connect(button, &QPushButton::clicked, this,
                [this, text = texts[index], tone] { CNotice::Show(text, tone, this); });
        buttons.append(button);
    }
    AddCaption(tr("Notices at the bottom right of the screen"));
    AddRow(buttons);
}

void CMessageSection::AddEmptyState()
{
    auto* empty =
        new CEmptyState("camera", tr("No cameras"), tr("Add a device to see its cameras here."), this);
    empty->SetAction(tr("Add a device"));
    setSurface(empty, Surface::Sunken);
    AddCaption(tr("Where nothing is to be shown"));
    AddWide(empty);
}

} // namespace VantorGUIToolkit
