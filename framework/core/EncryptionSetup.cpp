#include "framework/core/EncryptionSetup.h"

namespace framework {

namespace {

using comm_method::CDataEncryptionConfig;
using comm_method::DataEncryption;

std::optional<DataEncryption> ReadOrExplain(const CDataEncryptionConfig& setup, std::string& error)
{
    auto encryption = setup.Read();
    if (!encryption)
        error =
            "The data-encryption setup \"" + setup.File() +
            "\" cannot be read. The databases can be opened with it only. Put it and the file of the same "
            "name ending in \".key\" back from a backup, or move both and the databases away to begin anew.";
    return encryption;
}

} // namespace

std::optional<DataEncryption> PrepareEncryption(const std::string& root, std::string& error)
{
    const CDataEncryptionConfig setup(root + comm_method::kFrameworkSetup);
    if (setup.Exists())
        return ReadOrExplain(setup, error);
    std::optional<DataEncryption> encryption;
    for (const char* name : comm_method::kOlderSetups) {
        const CDataEncryptionConfig older(root + name);
        if (!encryption && older.Exists() && !(encryption = ReadOrExplain(older, error)))
            return std::nullopt;
    }
    if (!encryption)
        encryption = CDataEncryptionConfig::Generate();
    if (setup.Write(*encryption))
        return encryption;
    error = "The data-encryption setup \"" + setup.File() + "\" cannot be written.";
    return std::nullopt;
}

} // namespace framework
