#include "CommunicationLayer/FrameworkRequests.h"

#include "Protocol/JSONStruct/HTTP/AlarmJSONStruct.h"

namespace commlayer {

namespace {

constexpr const char* kComponentId = "Video.C";

} // namespace

bool CRegisterComponent::request(const std::vector<std::string>& supportUrlList, ITransport& transport)
{
    protocol::ComponentRegisterInfo info;
    info.supportUrlList = supportUrlList;
    return CCommand<kPost, protocol::route::kRegister, protocol::ComponentRegisterInfo>::request(info,
                                                                                                 transport);
}

bool CRegisterAlarm::request(ITransport& transport)
{
    protocol::AlarmRegisterData alarms;
    alarms.componentId = kComponentId;
    return CCommand<kPost, protocol::route::kAlarmRegister, protocol::AlarmRegisterData>::request(alarms,
                                                                                                  transport);
}

} // namespace commlayer
