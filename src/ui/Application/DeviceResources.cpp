#include "ui/Application/DeviceResources.h"

#include "Base/MessageLoop.h"
#include "Base/Singleton.h"
#include "CommonMethodLib/UserDataPath.h"

namespace video {

namespace {

constexpr const char* kTrustFile = "DeviceCertificates";

/// The centre with what it stands on.
struct Resources
{
    CFrameworkDirectory directory;
    CSessionPool sessions{comm_methodlib::CUserDataPath::Instance().componentPath() + kTrustFile};
    CResourceCentre centre{Base::CSingleton<Base::CMessageLoopForNotify>::Instance(), directory, sessions};
};

struct Tree : vantor::IResourceTreeManager
{
    UiDataController::IElementSource& Elements() override { return DeviceResources().Model(); }
};

struct GroupList : vantor::IGroupManager
{
    std::vector<UiDataController::ElementInfo> Groups() const override
    {
        return DeviceResources().Model().All(UiDataController::ElementType::Group);
    }
};

} // namespace

CResourceCentre& DeviceResources()
{
    static auto* const resources = new Resources;
    return resources->centre;
}

vantor::IResourceTreeManager& DeviceTree()
{
    static Tree tree;
    return tree;
}

vantor::IGroupManager& DeviceGroups()
{
    static GroupList groups;
    return groups;
}

} // namespace video
