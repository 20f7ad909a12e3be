#pragma once

#include "VantorGUIToolkit/UiSingleton.h"

#include <QString>

#include <mutex>

namespace UiDataController {

/// What the remote-configuration pages are shown with: language, product edition, skin. Any thread.
class CRemoteConfigController
{
public:
    /// Creates the process's controller ahead of its first use.
    static void CreateInstance() { Instance(); }
    static CRemoteConfigController& Instance();

    /// Starts with a language number (VantorGUIToolkit/Language.h). A second call replaces the language.
    void InitRemoteConfig(int language);
    /// The product edition's number and the skin's name, as the framework passed them.
    void setRemoteVersionType(int versionType);
    void setRemoteSkinType(const QString& skinType);

    bool isInit() const;
    int language() const;
    int remoteVersionType() const;
    QString remoteSkinType() const;

    /// Back to the state before InitRemoteConfig. May be called again.
    void UnInit();

private:
    struct Values
    {
        bool init = false;
        int language = 0;
        int versionType = 0;
        QString skinType;
    };

    mutable std::mutex m_mutex;
    Values m_values;
};

} // namespace UiDataController
