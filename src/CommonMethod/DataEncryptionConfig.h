#pragma once

#include "Base/Encrypt.h"

#include <array>
#include <optional>
#include <string>

namespace comm_method {

/// What a data-encryption setup holds. The secrets are wiped with the object.
struct DataEncryption
{
    std::string id;          ///< names the setup, for messages
    std::string databaseKey; ///< the databases' raw key, 64 hexadecimal digits
    std::string dataKey;     ///< the key of other data that lies enciphered on disk, 64 hexadecimal digits

    DataEncryption() = default;
    DataEncryption(const DataEncryption&) = default;
    DataEncryption& operator=(const DataEncryption&) = default;
    ~DataEncryption();

    bool operator==(const DataEncryption& other) const;

    /// The parameters of Base::Encrypt made of the data key, labelled with the id.
    Base::Encrypt::AESParams Params() const;
};

/// The setup in the user data root, and those that older releases left there, in the order in which they are
/// tried.
inline constexpr const char* kFrameworkSetup = "Framework.C/DESetup.xml";
inline constexpr std::array<const char*, 3> kOlderSetups = {"ClientDESetup.xml", "Framework.S/DESetup.xml",
                                                            "DESetup.xml"};

/// A setup file's sealed text, and the keyring's entry of its sealing key; empty when that lies in a file.
struct SealedSetup
{
    std::string text;
    std::string keyringEntry;
};

struct SealingKey;

/// The data-encryption setup file and its sealing key.
///
/// "DESetup.xml" is `<DESetup version="1" keyring="NAME"><Sealed>TEXT</Sealed></DESetup>` of at most 64 KiB.
/// TEXT is what Base::Encrypt::Seal gives for the lines "id=...", "key=...", "data=..." (keys as 64
/// hexadecimal digits) under the sealing key, with the label "Vantor.DESetup.1". The sealing key is 32 bytes
/// as 64 hexadecimal digits: in the entry NAME of the user's keyring, or without the attribute in
/// "DESetup.key" (the same name with ".key"), a file of mode 0600. See CSealingKeys.
///
/// One thread at a time. Paths are in the local code page.
class CDataEncryptionConfig
{
public:
    /// file: the path of the setup file; it ends in ".xml".
    explicit CDataEncryptionConfig(const std::string& file);

    /// New random keys under a new id.
    static DataEncryption Generate();

    const std::string& File() const { return m_file; }
    bool Exists() const;

    /// The setup; nothing after one line that says why not.
    std::optional<DataEncryption> Read() const;

    /// Writes the setup file anew, in one step; the folder and the sealing key are made when they are
    /// missing. False after one line.
    [[nodiscard]] bool Write(const DataEncryption& encryption) const;

    /// Deletes the setup file and its sealing key.
    void Remove() const;

    /// Puts a setup that cannot be read aside, as "<file>.damaged", ".damaged.2" and so on, and so its key
    /// file. The keyring's entry stays.
    void SetAside() const;

private:
    std::optional<SealedSetup> ReadSealed() const;
    std::optional<DataEncryption> Unseal(const SealedSetup& sealed) const;
    std::optional<SealingKey> KeyToWriteWith() const;

    const std::string m_file;
};

} // namespace comm_method
