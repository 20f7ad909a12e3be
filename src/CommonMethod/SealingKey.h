#pragma once

#include "Base/Encrypt.h"

#include <optional>
#include <string>

namespace comm_method {

/// A sealing key and the name of the keyring's entry that it lies in; without a name it lies in the key file.
struct SealingKey
{
    Base::Encrypt::AESParams params;
    std::string entry;
};

/// Where the sealing keys of a setup file are kept: 32 bytes as 64 hexadecimal digits, in an entry of the
/// user's keyring or in a file beside the setup. A failure leaves a line in the log. One thread at a time.
class CSealingKeys
{
public:
    /// setupFile: in the local code page; it ends in ".xml", the key file in ".key".
    explicit CSealingKeys(const std::string& setupFile);

    /// The key of the keyring's entry, or of the file when entry is empty. The file must belong to this user
    /// (or to the system's administrator), and is kept from others: a wrong mode is put right, with a
    /// warning.
    std::optional<SealingKey> Read(const std::string& entry) const;

    /// A new key: in the keyring when there is one that takes it and gives it back, else in the file. What no
    /// key can be read from is put aside before it would be overwritten.
    std::optional<SealingKey> Make() const;

    bool HasFile() const;
    const std::string& File() const { return m_file; }

    /// Removes the key from where it lies.
    void Remove(const std::string& entry) const;

private:
    std::optional<std::string> LoadEntry(const std::string& entry) const;
    std::optional<std::string> ReadFile() const;
    bool StoreEntry(const std::string& entry, const std::string& text) const;

    const std::string m_setupFile;
    const std::string m_file;
};

/// Puts a file aside as "<file>.damaged", or ".damaged.2" and so on; nothing happens when there is none.
void PutAside(const std::string& file);

/// Deletes a file, if it exists, with a line in the log.
void DeleteFile(const std::string& file);

} // namespace comm_method
