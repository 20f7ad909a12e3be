#pragma once

#include <QString>

#include <cstdint>

namespace video {

/// The start parameters from the command line. Set once on the GUI thread during start-up, read afterwards.
class CVantorApplicationManager
{
public:
    static CVantorApplicationManager& Instance();

    /// skin: its name; language: the user-interface language's number; versionType: the product edition's
    /// number.
    void SetStartParameters(const QString& skin, std::int32_t language, std::int32_t versionType);

    std::int32_t Language() const { return m_language; }
    std::int32_t VersionType() const { return m_versionType; }
    const QString& SkinType() const { return m_skinType; }

private:
    std::int32_t m_language = 0;
    std::int32_t m_versionType = 0;
    QString m_skinType;
};

} // namespace video
