#include "VantorSkin/SkinPalette.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

namespace VantorGUIToolkit {

namespace {

struct Role
{
    const char* name;
    QPalette::ColorRole nearest;
};

const Role kRoles[] = {
    {"window", QPalette::Window},
    {"surface", QPalette::Window},
    {"surface-raised", QPalette::Window},
    {"surface-sunken", QPalette::Base},
    {"bar", QPalette::Window},
    {"alternate", QPalette::AlternateBase},
    {"border", QPalette::Mid},
    {"border-strong", QPalette::Dark},
    {"text", QPalette::WindowText},
    {"text-secondary", QPalette::WindowText},
    {"text-disabled", QPalette::Mid},
    {"icon", QPalette::WindowText},
    {"accent", QPalette::Highlight},
    {"accent-hover", QPalette::Highlight},
    {"accent-pressed", QPalette::Highlight},
    {"on-accent", QPalette::HighlightedText},
    {"accent-line", QPalette::Highlight},
    {"accent-text", QPalette::Link},
    {"button", QPalette::Button},
    {"button-hover", QPalette::Midlight},
    {"button-pressed", QPalette::Mid},
    {"disabled", QPalette::Window},
    {"selection", QPalette::Highlight},
    {"on-selection", QPalette::HighlightedText},
    {"hover", QPalette::AlternateBase},
    {"pressed", QPalette::Midlight},
    {"focus", QPalette::Highlight},
    {"error", QPalette::WindowText},
    {"error-soft", QPalette::Window},
    {"warn", QPalette::WindowText},
    {"warn-soft", QPalette::Window},
    {"ok", QPalette::WindowText},
    {"ok-soft", QPalette::Window},
    {"info", QPalette::WindowText},
    {"info-soft", QPalette::Window},
    {"idle-soft", QPalette::Window},
    {"video", QPalette::Shadow},
    {"overlay", QPalette::Window},
    {"tooltip", QPalette::ToolTipBase},
    {"on-tooltip", QPalette::ToolTipText},
    {"scrollbar", QPalette::Mid},
    {"scrollbar-hover", QPalette::Dark},
};

/// A colour of Qt's palette: in use, and as it is where a widget is disabled.
struct PaletteRow
{
    QPalette::ColorRole qt;
    const char* role;
    const char* disabled;
};

const PaletteRow kPaletteRows[] = {
    {QPalette::Window, "surface", "surface"},
    {QPalette::WindowText, "text", "text-disabled"},
    {QPalette::Base, "surface-sunken", "disabled"},
    {QPalette::AlternateBase, "alternate", "disabled"},
    {QPalette::Text, "text", "text-disabled"},
    {QPalette::PlaceholderText, "text-secondary", "text-disabled"},
    {QPalette::Button, "button", "disabled"},
    {QPalette::ButtonText, "text", "text-disabled"},
    {QPalette::BrightText, "on-accent", "text-disabled"},
    {QPalette::ToolTipBase, "tooltip", "tooltip"},
    {QPalette::ToolTipText, "on-tooltip", "on-tooltip"},
    {QPalette::Highlight, "selection", "pressed"},
    {QPalette::HighlightedText, "on-selection", "text-disabled"},
    {QPalette::Link, "accent-text", "text-disabled"},
    {QPalette::LinkVisited, "accent-text", "text-disabled"},
    {QPalette::Light, "surface-raised", "surface-raised"},
    {QPalette::Midlight, "hover", "hover"},
    {QPalette::Mid, "border", "border"},
    {QPalette::Dark, "border-strong", "border"},
    {QPalette::Shadow, "window", "window"},
};

bool IsColor(const QString& text)
{
    return text.startsWith('#') && (text.size() == 7 || text.size() == 9) && QColor::isValidColor(text);
}

QString SheetColor(const QColor& color)
{
    if (color.alpha() == 255)
        return color.name();
    return QString("rgba(%1, %2, %3, %4)")
        .arg(color.red())
        .arg(color.green())
        .arg(color.blue())
        .arg(color.alpha());
}

std::nullopt_t Refuse(QString& why, const QString& reason)
{
    why = reason;
    return std::nullopt;
}

} // namespace

const QString SkinPalette::kResource = QStringLiteral(":/VantorGUIToolKit/Palette/Palette.json");

QStringList SkinPalette::Roles()
{
    QStringList names;
    for (const Role& role : kRoles)
        names << role.name;
    return names;
}

std::optional<SkinPalette> SkinPalette::FromJson(const QByteArray& json, QString& why)
{
    if (json.size() > kMaxBytes)
        return Refuse(why, "larger than 64 KiB");
    QJsonParseError error;
    const QJsonObject document = QJsonDocument::fromJson(json, &error).object();
    if (error.error != QJsonParseError::NoError)
        return Refuse(why, error.errorString());
    const QJsonObject colors = document["roles"].toObject();
    SkinPalette palette;
    palette.m_name = document["name"].toString();
    for (const QString& role : Roles()) {
        const QString text = colors[role].toString();
        if (!IsColor(text))
            return Refuse(why, "no colour for the role " + role);
        palette.m_colors.insert(role, QColor(text));
    }
    return palette;
}

std::optional<SkinPalette> SkinPalette::Load(const QString& path, QString& why)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return Refuse(why, file.errorString());
    return FromJson(file.read(kMaxBytes + 1), why);
}

SkinPalette SkinPalette::Like(const QPalette& palette)
{
    SkinPalette like;
    for (const Role& role : kRoles)
        like.m_colors.insert(role.name, palette.color(QPalette::Active, role.nearest));
    return like;
}

QHash<QString, QString> SkinPalette::StyleParameters() const
{
    QHash<QString, QString> parameters;
    for (auto color = m_colors.constBegin(); color != m_colors.constEnd(); ++color)
        parameters.insert(color.key(), SheetColor(*color));
    return parameters;
}

QPalette SkinPalette::ToQPalette() const
{
    QPalette palette;
    for (const PaletteRow& row : kPaletteRows) {
        palette.setColor(QPalette::Active, row.qt, Color(row.role));
        palette.setColor(QPalette::Inactive, row.qt, Color(row.role));
        palette.setColor(QPalette::Disabled, row.qt, Color(row.disabled));
    }
    return palette;
}

} // namespace VantorGUIToolkit
