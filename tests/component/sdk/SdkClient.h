#pragma once

#include "QxNetSDK/QxNetSDK.h"

#include <cstring>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

/// The library while a test runs, and short ways to call it.
class CSdk
{
public:
    CSdk() { EXPECT_EQ(QxNet_Init(), 1); }
    ~CSdk() { EXPECT_EQ(QxNet_Cleanup(), 1); }

    static QxNetLogin To(std::uint16_t port, std::uint32_t timeoutMs = 5000)
    {
        QxNetLogin login{};
        login.size = sizeof login;
        login.port = port;
        login.connectTimeoutMs = timeoutMs;
        login.exchangeTimeoutMs = timeoutMs;
        std::strcpy(login.address, "127.0.0.1");
        std::strcpy(login.user, "admin");
        std::strcpy(login.password, "secret");
        return login;
    }
    static std::int32_t LogIn(std::uint16_t port, std::uint32_t timeoutMs = 5000)
    {
        const QxNetLogin login = To(port, timeoutMs);
        return QxNet_Login(&login, nullptr);
    }
};

/// The calling thread's error, its module and the device's own number.
struct ErrorTriple
{
    std::uint32_t code;
    std::uint32_t module;
    std::uint32_t own;

    bool operator==(const ErrorTriple& other) const
    {
        return code == other.code && module == other.module && own == other.own;
    }
};

inline void PrintTo(const ErrorTriple& error, std::ostream* out)
{
    *out << error.code << "-" << error.module << "-" << error.own;
}

inline ErrorTriple LastError()
{
    ErrorTriple error{NET_DVR_GetLastError(), 0, 0};
    error.module = NET_DVR_GetLastErrorModelCode(&error.own);
    return error;
}

/// A structure as any command may carry: its size and some octets.
struct Octets
{
    std::uint32_t size = sizeof(Octets);
    char bytes[28] = {};
};
