#pragma once

#include "Base/Encrypt.h"
#include "Base/Noncopyable.h"

#include <mutex>
#include <string>

namespace DatabaseUpdate {

/// Knows how the databases that the schema update opens are encrypted. Any thread.
class CDataEncryptionMgr : Base::CNoncopyable
{
public:
    static CDataEncryptionMgr& Instance();

    CDataEncryptionMgr() = default;
    ~CDataEncryptionMgr() { Clear(); }

    /// params: the process's data encryption; key: the databases' raw key, 64 hexadecimal digits, empty for
    /// plain files; id: which setup the two come from, for messages.
    void Init(const Base::Encrypt::AESParams& params, const std::string& key, const std::string& id);

    /// Back to plain files; the secrets are wiped.
    void Clear();

    Base::Encrypt::AESParams Params() const;
    std::string Key() const;
    std::string Id() const;

private:
    mutable std::mutex m_mutex;
    Base::Encrypt::AESParams m_params;
    std::string m_key;
    std::string m_id;
};

} // namespace DatabaseUpdate
