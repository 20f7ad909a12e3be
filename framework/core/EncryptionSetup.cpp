#include "framework/core/EncryptionSetup.h"

#include "Base/StringUtil.h"
#include "Sqlite3DO/SQLite3Engine.h"

#include <filesystem>

namespace framework {

namespace {

using comm_method::CDataEncryptionConfig;
using comm_method::DataEncryption;

std::optional<DataEncryption> ReadOrExplain(const CDataEncryptionConfig& setup, std::string& error)
{
    auto encryption = setup.Read();
    if (!encryption)
        error = "The data-encryption setup \"" + setup.File() +
                "\" cannot be read; the log says why. The databases can be opened with it only. Unlock the "
                "keyring if its key lies there; else put it and the file of the same name ending in "
                "\".key\" back from a backup, or move both and the databases away to begin anew.";
    return encryption;
}

/// Whether the component's database was encrypted under a setup that is no more.
bool HasEncryptedDatabase(const std::string& root)
{
    const std::string database = Base::LocalToUTF8(root) + "Video.C/VideoSystem";
    std::error_code error;
    const auto size = std::filesystem::file_size(std::filesystem::u8path(database), error);
    return !error && size > 0 && !Sqlite3DO::IsPlainDatabase(database);
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
    if (!encryption && HasEncryptedDatabase(root)) {
        error = "The data-encryption setup \"" + setup.File() +
                "\" is missing, and the component's database is encrypted. Put it and its key back from a "
                "backup, or move the database away to begin anew.";
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
