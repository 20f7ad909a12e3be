#include "CommonMethod/DecryptionComm.h"

#include "Base/Log.h"

#include <utility>

namespace comm_method {

namespace {

bool OpenCredentials(const CDecryptionComm& decryption, protocol::DeviceResponseData& device)
{
    if (decryption.Open(device.userName) && decryption.Open(device.password))
        return true;
    Base::Encrypt::Wipe(device.userName);
    Base::Encrypt::Wipe(device.password);
    return false;
}

bool Logged(bool opened)
{
    if (!opened)
        BASE_ERROR("CDecryptionComm failed!");
    return opened;
}

} // namespace

CDecryptionComm::CDecryptionComm(std::optional<Base::Encrypt::AESParams> params) : m_params(std::move(params))
{}

bool CDecryptionComm::Open(std::string& text) const
{
    if (text.empty())
        return true;
    std::optional<std::string> plain = m_params ? Base::Encrypt::Open(*m_params, text) : std::nullopt;
    text = plain ? std::move(*plain) : std::string();
    return plain.has_value();
}

bool decryptDeviceResponse(protocol::DeviceResponseData& device)
{
    return Logged(OpenCredentials(CDecryptionComm(), device));
}

bool decryptDeviceResponseList(protocol::DeviceResponseListData& list)
{
    const CDecryptionComm decryption;
    bool opened = true;
    for (protocol::DeviceResponseData& device : list.devices)
        opened = OpenCredentials(decryption, device) && opened;
    return Logged(opened);
}

} // namespace comm_method
