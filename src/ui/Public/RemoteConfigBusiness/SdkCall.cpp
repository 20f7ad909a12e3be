#include "ui/Public/RemoteConfigBusiness/SdkCall.h"

#include "CommonMethod/SDKErrorCode.h"

#include <cstring>

namespace video::sdk_call {

namespace {

void SetSizeField(void* structure, uint32_t size)
{
    std::memcpy(structure, &size, sizeof(size));
}

void SetSizeFields(void* structures, uint32_t size, int count)
{
    for (int i = 0; i < count; ++i)
        SetSizeField(static_cast<char*>(structures) + static_cast<std::size_t>(i) * size, size);
}

void LogFailedItems(const Batch& batch, const uint32_t* status)
{
    for (int i = 0; i < batch.count; ++i)
        if (status[i] != 0)
            Base::CLog::Instance().Write(Base::LogLevel::Error, "", batch.location,
                                         "[stream config]----error %s[i], error code (%d).", batch.parameter,
                                         static_cast<int>(status[i]));
}

/// Of all items together. The SDK refuses more than 256 of them, long before this would not fit.
uint32_t Total(const Batch& batch, uint32_t size)
{
    return static_cast<uint32_t>(batch.count) * size;
}

template<class Call>
int Exchange(const Target& target, const char* name, Call call, uint32_t command, void* structure,
             uint32_t size)
{
    if (!target.IsValid() || structure == nullptr)
        return -1;
    SetSizeField(structure, size);
    return call(target.login, command, target.channel, structure, size) ? 0 : Failed(name, target.location);
}

template<class Call>
int ExchangeItems(const Batch& batch, const char* name, Call call, uint32_t command,
                  tagNET_DVR_CHANNEL_GROUP* groups, void* structures, uint32_t size)
{
    if (batch.login < 0 || batch.count <= 0 || groups == nullptr || structures == nullptr)
        return -1;
    const std::unique_ptr<uint32_t[]> status(new (std::nothrow) uint32_t[batch.count]());
    if (!status)
        return -1;
    const uint32_t groupSize = sizeof(tagNET_DVR_CHANNEL_GROUP);
    SetSizeFields(groups, groupSize, batch.count);
    SetSizeFields(structures, size, batch.count);
    if (!call(batch.login, command, static_cast<uint32_t>(batch.count), groups, Total(batch, groupSize),
              status.get(), structures, Total(batch, size)))
        return Failed(name, batch.location);
    LogFailedItems(batch, status.get());
    return 0;
}

} // namespace

int Failed(const char* function, const Base::LogLocation& location)
{
    int error = 0;
    int moduleError = 0;
    comm_method::getLastSDKError(error, moduleError, true);
    Base::CLog::Instance().Write(Base::LogLevel::Error, "", location, "%s failed, [%d]-[%d].", function,
                                 error, moduleError);
    return -1;
}

int Read(const Target& target, uint32_t command, void* structure, uint32_t size)
{
    return Exchange(target, "NET_DVR_GetDVRConfig", NET_DVR_GetDVRConfig, command, structure, size);
}

int Write(const Target& target, uint32_t command, void* structure, uint32_t size)
{
    return Exchange(target, "NET_DVR_SetDVRConfig", NET_DVR_SetDVRConfig, command, structure, size);
}

int ReadItems(const Batch& batch, uint32_t command, tagNET_DVR_CHANNEL_GROUP* groups, void* structures,
              uint32_t size)
{
    return ExchangeItems(batch, "NET_DVR_GetDeviceConfig", NET_DVR_GetDeviceConfig, command, groups,
                         structures, size);
}

int WriteItems(const Batch& batch, uint32_t command, tagNET_DVR_CHANNEL_GROUP* groups, void* structures,
               uint32_t size)
{
    return ExchangeItems(batch, "NET_DVR_SetDeviceConfig", NET_DVR_SetDeviceConfig, command, groups,
                         structures, size);
}

} // namespace video::sdk_call
