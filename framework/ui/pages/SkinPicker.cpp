#include "framework/ui/pages/SkinPicker.h"

#include "VantorGUIToolkit/Toolkit.h"
#include "VantorGUIToolkit/Widgets/Dress.h"
#include "VantorSkin/SkinPalette.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QPainter>
#include <QResource>
#include <QStyle>

namespace framework {

using namespace VantorGUIToolkit;

namespace {

constexpr QSize kPicture(128, 80);
constexpr int kFrame = 2;
constexpr int kRadius = 6;

// The package of a skin that is not the one in use is put below a root of its own, so that the two do not
// mix.
SkinPalette PaletteOf(const QString& skin)
{
    const QString package = toolkit().targetPath() + "../plugins/skins/VantorGUIToolKit" + skin + ".rcc";
    const QString root = "/preview/" + skin;
    const bool loaded = QResource::registerResource(package, root);
    QString why;
    const auto palette = SkinPalette::Load(":" + root + SkinPalette::kResource.mid(1), why);
    if (loaded)
        QResource::unregisterResource(package, root);
    return palette.value_or(SkinPalette::Like(QPalette()));
}

/// A tile with a picture of a window in the colours of a skin.
class CSkinTile : public QAbstractButton
{
public:
    CSkinTile(const SkinChoice& choice, QWidget* parent)
        : QAbstractButton(parent), m_skin(choice.skin), m_palette(PaletteOf(choice.skin)),
          m_around(PaletteOf(toolkit().skinType()))
    {
        setObjectName("skin" + choice.skin);
        setText(choice.title);
        setCheckable(true);
        setFocusPolicy(Qt::StrongFocus);
        setAttribute(Qt::WA_Hover);
        setCursor(Qt::PointingHandCursor);
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    }

    const QString& Skin() const { return m_skin; }

    QSize sizeHint() const override
    {
        return kPicture + QSize(2 * kFrame + 2, 2 * kFrame + Grid::Small + fontMetrics().height() + 2);
    }

protected:
    void paintEvent(QPaintEvent*) override;

private:
    void PaintWindow(QPainter& painter, const QRect& place) const;
    void PaintBlock(QPainter& painter, const QRect& window, const QRect& block, const char* role) const;

    const QString m_skin;
    const SkinPalette m_palette; ///< of the skin that the tile offers
    const SkinPalette m_around;  ///< of the skin in use
};

void CSkinTile::PaintBlock(QPainter& painter, const QRect& window, const QRect& block, const char* role) const
{
    const QRect mirrored = QStyle::visualRect(layoutDirection(), window, block.translated(window.topLeft()));
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_palette.Color(role));
    painter.drawRoundedRect(mirrored, 2, 2);
}

void CSkinTile::PaintWindow(QPainter& painter, const QRect& place) const
{
    struct Block
    {
        QRect rect;
        const char* role;
    };
    const Block blocks[] = {
        {{0, 0, 128, 14}, "bar"},
        {{6, 4, 34, 5}, "text"},
        {{106, 4, 16, 6}, "accent"},
        {{0, 14, 34, 66}, "surface"},
        {{4, 19, 26, 8}, "selection"},
        {{8, 32, 20, 3}, "text-secondary"},
        {{8, 40, 20, 3}, "text-secondary"},
        {{8, 48, 16, 3}, "text-secondary"},
        {{40, 20, 82, 54}, "surface-raised"},
        {{46, 25, 40, 5}, "text"},
        {{46, 36, 70, 3}, "border-strong"},
        {{46, 44, 70, 3}, "border-strong"},
        {{46, 52, 50, 3}, "border-strong"},
        {{46, 61, 24, 8}, "accent"},
        {{74, 61, 24, 8}, "button"},
    };
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_palette.Color("window"));
    painter.drawRoundedRect(place, kRadius, kRadius);
    for (const Block& block : blocks)
        PaintBlock(painter, place, block.rect, block.role);
}

void CSkinTile::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRect frame(0, 0, kPicture.width() + 2 * kFrame + 2, kPicture.height() + 2 * kFrame + 2);
    const QRect shown = QStyle::visualRect(layoutDirection(), rect(), frame);
    PaintWindow(painter, QRect(shown.topLeft() + QPoint(kFrame + 1, kFrame + 1), kPicture));
    const char* role = hasFocus() ? "focus" : isChecked() ? "accent" : "border";
    painter.setPen(QPen(m_around.Color(role), isChecked() || hasFocus() ? kFrame : 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(shown).adjusted(1, 1, -1, -1), kRadius + kFrame, kRadius + kFrame);
    QFont font = this->font();
    font.setBold(isChecked());
    painter.setFont(font);
    painter.setPen(palette().color(QPalette::WindowText));
    const QRect text(shown.left(), shown.bottom() + Grid::Small - 2, shown.width(),
                     fontMetrics().height() + 2);
    painter.drawText(text, Qt::AlignHCenter | Qt::AlignVCenter, this->text());
}

} // namespace

std::vector<SkinChoice> AllSkins()
{
    return {{"BlackRedSkin", CSkinPicker::tr("Dark")},
            {"GreyRedSkin", CSkinPicker::tr("Bright")},
            {"BlueSkin", CSkinPicker::tr("Blue")},
            {"NeutralSkin", CSkinPicker::tr("Neutral")}};
}

CSkinPicker::CSkinPicker(QWidget* parent) : QWidget(parent), m_group(new QButtonGroup(this))
{
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(Grid::Large);
    for (const SkinChoice& choice : AllSkins()) {
        auto* tile = new CSkinTile(choice, this);
        m_group->addButton(tile);
        layout->addWidget(tile);
        connect(tile, &QAbstractButton::clicked, this, [this, skin = choice.skin] { emit SkinChosen(skin); });
    }
    layout->addStretch();
}

QString CSkinPicker::Skin() const
{
    const auto* tile = static_cast<const CSkinTile*>(m_group->checkedButton());
    return tile ? tile->Skin() : QString();
}

void CSkinPicker::SetSkin(const QString& skin)
{
    for (QAbstractButton* button : m_group->buttons())
        button->setChecked(static_cast<const CSkinTile*>(button)->Skin() == skin);
}

} // namespace framework
