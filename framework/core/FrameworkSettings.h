#pragma once

#include "Base/Noncopyable.h"
#include "Protocol/JSONStruct/JSONMessage.h"

#include <functional>
#include <memory>
#include <string>

namespace framework {

/// What the user chose for the client as a whole.
struct FrameworkChoices
{
    std::string skin = "BlackRedSkin"; ///< "BlackRedSkin", "GreyRedSkin", "BlueSkin" or "NeutralSkin"
    int language = 1;                  ///< see VantorGUIToolkit/Language.h
    int versionType = 0;               ///< the product's edition
    bool chosen = false;               ///< false until the user has chosen skin and language
    std::string dateFormat = "yyyy-MM-dd";
    std::string timeFormat = "HH:mm:ss";
    std::string videoPath;   ///< UTF-8; the default folder of clips
    std::string picturePath; ///< UTF-8; the default folder of pictures

    static constexpr auto Fields()
    {
        using T = FrameworkChoices;
        using protocol::May;
        return std::make_tuple(May("skin", &T::skin), May("language", &T::language),
                               May("versionType", &T::versionType), May("chosen", &T::chosen),
                               May("dateFormat", &T::dateFormat), May("timeFormat", &T::timeFormat),
                               May("videoPath", &T::videoPath), May("picturePath", &T::picturePath));
    }
};

/// The choices, kept on disk. Any thread.
class CFrameworkSettings : Base::CNoncopyable
{
public:
    /// path: of the file; its folder exists. dataRoot: where the default folders lie, UTF-8, ending in "/".
    /// onChanged is called with the names of the changed choices, for example "skin, language".
    CFrameworkSettings(std::string path, const std::string& dataRoot,
                       std::function<void(const std::string& names)> onChanged = {});
    ~CFrameworkSettings();

    /// Why the file of an earlier start was set aside, in one sentence; empty when it was not.
    const std::string& LoadProblem() const;

    FrameworkChoices Get() const;
    /// An unknown skin, and formats or folders that are empty, are replaced by the defaults.
    void Set(const FrameworkChoices& choices);

private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace framework
