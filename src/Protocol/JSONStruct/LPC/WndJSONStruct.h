#pragma once

#include "Protocol/JSONStruct/JSONMessage.h"

#include <cstdint>
#include <optional>
#include <string>

/// Messages about the component's windows.
namespace protocol {

/// Asks for the native window of a page.
struct GetWndHandleRequestData : CMessage<GetWndHandleRequestData, ILPCData>
{
    static constexpr const char* kKey = "getWndHandle";
    std::string type; ///< the window's name, for example "MainView"

    static constexpr auto Fields() { return std::make_tuple(Must("type", &GetWndHandleRequestData::type)); }
};

struct GetWndHandleResponseData : CMessage<GetWndHandleResponseData, ILPCData>
{
    static constexpr const char* kKey = "getWndHandle";
    std::int64_t wndId = 0; ///< the platform's native window identifier
    std::optional<bool> available; ///< false: the page only says that it does not exist yet; absent: true

    static constexpr auto Fields()
    {
        using T = GetWndHandleResponseData;
        return std::make_tuple(Must("wndId", &T::wndId), May("available", &T::available));
    }
};

/// Asks to show the named window.
struct ShowWndRequestData : CMessage<ShowWndRequestData, ILPCData>
{
    static constexpr const char* kKey = "showWnd";
    std::string type;

    static constexpr auto Fields() { return std::make_tuple(Must("type", &ShowWndRequestData::type)); }
};

/// Asks which application stands behind a view of an auxiliary screen.
struct GetAuxiliaryScreenAppRequestData : CMessage<GetAuxiliaryScreenAppRequestData, ILPCData>
{
    static constexpr const char* kKey = "getAuxiliaryScreenApp";
    std::string type; ///< the view, for example "SecondLiveView"

    static constexpr auto Fields()
    {
        return std::make_tuple(Must("type", &GetAuxiliaryScreenAppRequestData::type));
    }
};

struct GetAuxiliaryScreenAppResponseData : CMessage<GetAuxiliaryScreenAppResponseData, ILPCData>
{
    static constexpr const char* kKey = "getAuxiliaryScreenApp";
    std::string type;         ///< the view asked for
    std::string appName;      ///< for example "MainView2"
    std::string icon;         ///< path below the component's resources
    std::string selectedIcon; ///< the same for the selected state

    static constexpr auto Fields()
    {
        using T = GetAuxiliaryScreenAppResponseData;
        return std::make_tuple(Must("type", &T::type), Must("appName", &T::appName), May("icon", &T::icon),
                               May("selectedIcon", &T::selectedIcon));
    }
};

/// What the framework does with a view of the live view.
enum class MainViewOperation { Recover, SaveView, SaveFisheye };

constexpr std::array<EnumText<MainViewOperation>, 3> JSONEnum(MainViewOperation)
{
    return {{{MainViewOperation::Recover, "recover view"},
             {MainViewOperation::SaveView, "save view"},
             {MainViewOperation::SaveFisheye, "save Fisheye"}}};
}

/// Tells that a view is to be recovered or saved.
struct MainViewState : CMessage<MainViewState, ILPCData>
{
    static constexpr const char* kKey = "componentStateNotify";
    std::string view; ///< "MainView", "SecondLiveView", "ThirdLiveView" or "FourthLiveView"
    MainViewOperation operation = MainViewOperation::Recover;

    static constexpr auto Fields()
    {
        return std::make_tuple(Must("view", &MainViewState::view),
                               Must("operation", &MainViewState::operation));
    }
};

} // namespace protocol
