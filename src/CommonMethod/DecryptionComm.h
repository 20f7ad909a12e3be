#pragma once

#include "Base/Encrypt.h"
#include "Protocol/JSONStruct/HTTP/DeviceJSONStruct.h"

#include <optional>
#include <string>

namespace comm_method {

/// Opens texts that the framework sends enciphered: texts of Base::Encrypt::Seal under the process's
/// parameters.
class CDecryptionComm
{
public:
    explicit CDecryptionComm(std::optional<Base::Encrypt::AESParams> params = Base::Encrypt::GetAESParams());

    /// Replaces the text by its plain one. An empty text stays so. False when it does not open, or no
    /// parameters are installed; the text is then empty.
    [[nodiscard]] bool Open(std::string& text) const;

private:
    std::optional<Base::Encrypt::AESParams> m_params;
};

/// Opens the credentials of a device. When one does not open, both are emptied, "CDecryptionComm failed!" is
/// logged and the result is false; everything else in the device stays.
[[nodiscard]] bool decryptDeviceResponse(protocol::DeviceResponseData& device);

/// The same for each device of the list; devices whose credentials open keep them whatever the others do. One
/// log line.
[[nodiscard]] bool decryptDeviceResponseList(protocol::DeviceResponseListData& list);

} // namespace comm_method
