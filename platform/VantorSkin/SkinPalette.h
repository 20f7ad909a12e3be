#pragma once

#include <QColor>
#include <QHash>
#include <QPalette>
#include <QString>
#include <QStringList>

#include <optional>

namespace VantorGUIToolkit {

/// The colours of a skin by the names of their roles. The roles are the same in every skin: style sheets name
/// them as "@role@", the style and the icons are coloured by them. Values only, any thread; drawing with them
/// needs the GUI thread.
class SkinPalette
{
public:
    /// Where a skin's package has its palette.
    static const QString kResource;
    /// A larger document is refused.
    static constexpr int kMaxBytes = 64 * 1024;

    /// Reads {"name": "...", "roles": {"role": "#RRGGBB" or "#AARRGGBB", ...}}. Every role has to be there;
    /// others are left aside, so that a package may be newer than the program or its style. Nothing, and the
    /// reason in why, when the document is anything else.
    static std::optional<SkinPalette> FromJson(const QByteArray& json, QString& why);

    /// The same from a file or resource.
    static std::optional<SkinPalette> Load(const QString& path, QString& why);

    /// Every role in the nearest colour of a palette of Qt, for when no skin is there.
    static SkinPalette Like(const QPalette& palette);

    static QStringList Roles();

    const QString& Name() const { return m_name; }

    /// Invalid for an unknown role.
    QColor Color(const QString& role) const { return m_colors.value(role); }

    /// Every role's colour as style sheets write it.
    QHash<QString, QString> StyleParameters() const;

    /// The palette for what is drawn without style sheets.
    QPalette ToQPalette() const;

private:
    QString m_name;
    QHash<QString, QColor> m_colors;
};

} // namespace VantorGUIToolkit
