#include "VantorSkin/SkinPalette.h"

#include <gtest/gtest.h>

#include <cmath>

using VantorGUIToolkit::SkinPalette;

namespace {

const char* const kSkins[] = {"BlackRedSkin", "GreyRedSkin", "BlueSkin", "NeutralSkin"};

double Linear(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

/// Relative luminance, from 0 to 1 (WCAG 2.1).
double Luminance(const QColor& color)
{
    return 0.2126 * Linear(color.redF()) + 0.7152 * Linear(color.greenF()) + 0.0722 * Linear(color.blueF());
}

/// From 1 to 21 (WCAG 2.1).
double Contrast(const QColor& one, const QColor& other)
{
    const double a = Luminance(one), b = Luminance(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

struct Pair
{
    QStringList above;
    QStringList below;
    double atLeast;
};

const QStringList kSurfaces = {"window", "surface",   "surface-raised", "surface-sunken",
                               "bar",    "alternate", "hover"};

/// What is drawn on what. Texts need 4.5; frames of inputs, the focus ring and icons need 3. Disabled texts
/// are exempt: they only have to be told from enabled ones.
const Pair kPairs[] = {
    {{"text", "text-secondary", "accent-text", "error", "warn", "ok", "info"}, kSurfaces, 4.5},
    {{"text"}, {"button", "button-hover", "button-pressed", "pressed", "disabled"}, 4.5},
    {{"text-secondary"}, {"pressed", "disabled", "idle-soft"}, 4.5},
    {{"on-accent"}, {"accent", "accent-hover", "accent-pressed"}, 4.5},
    {{"on-selection"}, {"selection"}, 4.5},
    {{"on-tooltip"}, {"tooltip"}, 4.5},
    {{"text"}, {"error-soft", "warn-soft", "ok-soft", "info-soft", "idle-soft"}, 4.5},
    {{"error"}, {"error-soft", "button-hover", "button-pressed"}, 4.5},
    {{"warn"}, {"warn-soft"}, 4.5},
    {{"ok"}, {"ok-soft"}, 4.5},
    {{"info"}, {"info-soft"}, 4.5},
    {{"border-strong"}, {"window", "surface", "surface-raised", "surface-sunken", "bar"}, 3},
    {{"accent-line"}, kSurfaces + QStringList{"selection"}, 3},
    {{"focus", "icon"}, kSurfaces + QStringList{"button"}, 3},
};

class EverySkin : public testing::TestWithParam<const char*>
{
protected:
    EverySkin()
    {
        QString why;
        palette = SkinPalette::Load(QString(SKIN_SOURCES) + GetParam() + "/Palette.json", why);
        EXPECT_TRUE(palette) << why.toStdString();
    }

    double RoleContrast(const QString& above, const QString& below) const
    {
        return Contrast(palette->Color(above), palette->Color(below));
    }

    std::optional<SkinPalette> palette;
};

TEST_P(EverySkin, CanBeReadOnEverySurface)
{
    ASSERT_TRUE(palette);
    for (const Pair& pair : kPairs)
        for (const QString& above : pair.above)
            for (const QString& below : pair.below)
                EXPECT_GE(RoleContrast(above, below), pair.atLeast)
                    << above.toStdString() << " on " << below.toStdString();
}

TEST_P(EverySkin, HasAPaletteOfQtThatCanBeRead)
{
    ASSERT_TRUE(palette);
    const QPalette qt = palette->ToQPalette();
    const std::pair<QPalette::ColorRole, QPalette::ColorRole> pairs[] = {
        {QPalette::WindowText, QPalette::Window},       {QPalette::Text, QPalette::Base},
        {QPalette::Text, QPalette::AlternateBase},      {QPalette::PlaceholderText, QPalette::Base},
        {QPalette::ButtonText, QPalette::Button},       {QPalette::HighlightedText, QPalette::Highlight},
        {QPalette::ToolTipText, QPalette::ToolTipBase}, {QPalette::Link, QPalette::Window},
    };
    for (const auto& [text, below] : pairs)
        EXPECT_GE(Contrast(qt.color(text), qt.color(below)), 4.5) << text << " on " << below;
    EXPECT_NE(qt.color(QPalette::Disabled, QPalette::Text), qt.color(QPalette::Active, QPalette::Text));
}

INSTANTIATE_TEST_SUITE_P(Palettes, EverySkin, testing::ValuesIn(kSkins));

TEST(APalette, IsRefusedWithAReasonUnlessItHasEveryRole)
{
    QByteArray roles;
    for (const QString& role : SkinPalette::Roles())
        roles += (roles.isEmpty() ? "\"" : ", \"") + role.toUtf8() + "\": \"#102030\"";
    const auto document = [](const QByteArray& content) { return "{\"roles\": {" + content + "}}"; };
    const std::pair<QByteArray, const char*> rows[] = {
        {"", "illegal"},
        {"[1]", "no colour for the role window"},
        {document("\"window\": \"#102030\""), "no colour for the role surface"},
        {document(QByteArray(roles).replace("\"window\": \"#102030\"", "\"window\": \"red\"")),
         "role window"},
        {document(QByteArray(roles).replace("\"window\": \"#102030\"", "\"window\": 5")), "role window"},
        {document(roles) + QByteArray(SkinPalette::kMaxBytes, ' '), "larger"},
    };
    QString why;
    EXPECT_TRUE(SkinPalette::FromJson(document(roles), why)) << why.toStdString();
    EXPECT_TRUE(SkinPalette::FromJson(document(roles + ", \"newer\": \"#102030\""), why))
        << why.toStdString();
    for (const auto& [json, reason] : rows) {
        why.clear();
        EXPECT_FALSE(SkinPalette::FromJson(json, why)) << reason;
        EXPECT_TRUE(why.contains(reason)) << why.toStdString() << " for " << reason;
    }
}

} // namespace
