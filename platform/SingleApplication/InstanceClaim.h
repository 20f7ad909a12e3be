#pragma once

#include "SingleApplication/InstanceBlock.h"

#include <chrono>
#include <string>

/// The claim to be the one process of an application. Knows no Qt and no window. One thread.
class CInstanceClaim : Base::CNoncopyable
{
public:
    enum class Result {
        Owned,       ///< this process owns the claim until Release or its end
        Taken,       ///< a running process owns it
        Unavailable, ///< the system gives no shared memory
    };

    /// patience: how long a block that cannot be read may stay so before it is taken over.
    explicit CInstanceClaim(std::string key, std::chrono::milliseconds patience = std::chrono::seconds(5))
        : m_key(std::move(key)), m_patience(patience)
    {}
    ~CInstanceClaim() { Release(); }

    /// Tries to become the owner. Waits only for an unreadable block.
    Result Take();

    /// Gives the claim back when this process owns it. May be called again.
    void Release();

private:
    void MakeReadable();
    bool TakeWord();

    const std::string m_key;
    const std::chrono::milliseconds m_patience;
    CInstanceBlock m_block;
    bool m_owned = false;
};

/// The short hash under which block and server of an application are named: 16 hexadecimal digits.
std::string InstanceKey(const std::string& identity, const std::string& user, const std::string& dataRoot);
