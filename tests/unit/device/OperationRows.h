#pragma once

#include "support/CapturedLog.h"
#include "support/FakeSdk.h"

#include <cstddef>
#include <cstring>
#include <functional>
#include <gtest/gtest.h>

/// What all operations of the business over the SDK have in common, checked row by row.
namespace rows {

inline const std::string kGet = "NET_DVR_GetDVRConfig";
inline const std::string kSet = "NET_DVR_SetDVRConfig";
constexpr int kLogin = 3;
constexpr int kChannel = 2;

/// One operation that reads or writes one structure.
struct Operation
{
    std::string name;
    std::string function;
    uint32_t command;
    uint32_t size; ///< of the structure, in bytes
    std::function<int(int login, int channel, void* structure)> call;
    int channel = kChannel; ///< that arrives
};

template<class Structure>
auto On(int (*operation)(int, int, Structure*))
{
    return [operation](int login, int channel, void* structure) {
        return operation(login, channel, static_cast<Structure*>(structure));
    };
}

inline FakeSdk::Bytes WithSizeField(FakeSdk::Bytes bytes, uint32_t size)
{
    std::memcpy(bytes.data(), &size, sizeof(size));
    return bytes;
}

inline void ExpectNothingDone(const FakeSdk& sdk, const CapturedLog& log)
{
    EXPECT_TRUE(sdk.Calls().empty());
    EXPECT_TRUE(log.Lines().empty());
}

inline void ExpectOneErrorLine(const CapturedLog& log, const std::string& line)
{
    EXPECT_EQ(std::vector<std::string>{line}, log.Errors());
    EXPECT_EQ(3u, log.Lines().size()) << "the error line, and the two of the pair";
}

inline void ExpectTravels(const Operation& row)
{
    FakeSdk sdk;
    CapturedLog log;
    const FakeSdk::Bytes answer(row.size, 0x5a);
    sdk.Answer(row.command, answer);
    FakeSdk::Bytes structure(row.size, 0x21);
    ASSERT_EQ(0, row.call(kLogin, kChannel, structure.data()));
    ASSERT_EQ(1u, sdk.Calls().size());
    const FakeSdk::Call call = sdk.Calls().front();
    EXPECT_EQ(row.function, call.function);
    EXPECT_EQ(kLogin, call.login);
    EXPECT_EQ(row.channel, call.channel);
    EXPECT_EQ(row.command, call.command);
    EXPECT_EQ(row.size, call.size);
    EXPECT_EQ(row.size, call.firstWord);
    EXPECT_EQ(structure, row.name[0] == 'G' ? answer : call.input);
    EXPECT_TRUE(log.Lines().empty());
}

inline void ExpectRefusesArguments(const Operation& row)
{
    FakeSdk sdk;
    CapturedLog log;
    FakeSdk::Bytes structure(row.size);
    EXPECT_EQ(-1, row.call(-1, kChannel, structure.data()));
    EXPECT_EQ(-1, row.call(kLogin, kChannel, nullptr));
    EXPECT_EQ(row.channel == 0 ? 0 : -1, row.call(kLogin, -1, structure.data()));
    if (row.channel != 0)
        ExpectNothingDone(sdk, log);
}

inline void ExpectFailureIsTold(const Operation& row)
{
    FakeSdk sdk;
    CapturedLog log;
    sdk.Fail(row.function, {QXNET_ERROR_BUSY, 17, 0});
    FakeSdk::Bytes structure(row.size);
    EXPECT_EQ(-1, row.call(kLogin, kChannel, structure.data()));
    EXPECT_EQ(1u, sdk.Calls().size());
    ExpectOneErrorLine(log, row.function + " failed, [503]-[17].");
}

inline void ExpectUniform(const std::vector<Operation>& operations)
{
    for (const Operation& row : operations) {
        SCOPED_TRACE(row.name + " of " + std::to_string(row.size) + " bytes");
        ExpectTravels(row);
        ExpectRefusesArguments(row);
        ExpectFailureIsTold(row);
    }
}

} // namespace rows
