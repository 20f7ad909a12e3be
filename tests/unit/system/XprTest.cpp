#include "Base/Error.h"
#include "XPR/XPR_File.h"
#include "XPR/XPR_Mutex.h"
#include "support/FileContent.h"
#include "support/TestDataRoot.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <cerrno>
#include <csignal>
#include <fstream>
#include <future>
#include <thread>

namespace {

namespace fs = std::filesystem;

void Put(const std::string& path, const std::string& content)
{
    std::ofstream(path, std::ios::binary) << content;
}

class XprFile : public testing::Test
{
protected:
    XprFile()
    {
        Put(m_data.Path() + "old", "old");
        fs::create_directory(m_data.Path() + "folder");
        ::mkfifo((m_data.Path() + "pipe").c_str(), 0600);
    }

    XPR_FileHandle Open(const std::string& name, int flags, int mode)
    {
        return XPR_OpenFile((m_data.Path() + name).c_str(), flags, mode);
    }

    TestDataRoot m_data;
};

TEST_F(XprFile, ModeDecidesWhatTheFileMayBeBefore)
{
    struct Row
    {
        int mode;
        const char* name;
        const char* after; // Content after "+" was written at the start; null: refused.
    };
    const Row rows[] = {
        {XPR_MODE_EXISTING, "old", "+ld"},     {XPR_MODE_EXISTING, "new", nullptr},
        {XPR_MODE_CREATE, "old", "+ld"},       {XPR_MODE_CREATE, "new", "+"},
        {XPR_MODE_CREATE_NEW, "old", nullptr}, {XPR_MODE_CREATE_NEW, "new", "+"},
        {XPR_MODE_TRUNCATE, "old", "+"},       {XPR_MODE_TRUNCATE, "new", "+"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(testing::Message() << row.name << " mode " << row.mode);
        Put(m_data.Path() + "old", "old");
        fs::remove(m_data.Path() + "new");
        const XPR_FileHandle file = Open(row.name, XPR_OPEN_WRITE, row.mode);
        ASSERT_EQ(file != nullptr, row.after != nullptr);
        if (!file)
            continue;
        EXPECT_EQ(XPR_WriteFile(file, "+", 1), 1);
        EXPECT_TRUE(XPR_CloseFile(file));
        EXPECT_EQ(FileContent(m_data.Path() + row.name), row.after);
    }
}

TEST_F(XprFile, WhatCannotBeOpenedGivesNoFileAndTheReason)
{
    const std::tuple<const char*, int, int, int> rows[] = {
        {"missing", 1, 0x1000, ENOENT},
        {"folder", 1, 0x1000, EISDIR},
        {"pipe", 1, 0x1000, EINVAL},
        {"old/below", 1, 0x1000, ENOTDIR},
        {"old", XPR_OPEN_WRITE, XPR_MODE_CREATE_NEW, EEXIST},
        {"old", XPR_OPEN_READ, XPR_MODE_TRUNCATE, EINVAL},
        {"old", 0, XPR_MODE_EXISTING, EINVAL},
        {"old", 4, XPR_MODE_EXISTING, EINVAL},
        {"old", XPR_OPEN_READ, 0, EINVAL},
        {"old", XPR_OPEN_READ, 0x3000, EINVAL},
    };
    for (const auto& [name, flags, mode, error] : rows) {
        SCOPED_TRACE(testing::Message() << name << " flags " << flags << " mode " << mode);
        Base::Error::SetLastError(0);
        EXPECT_EQ(Open(name, flags, mode), nullptr);
        EXPECT_EQ(Base::Error::GetLastError(), error);
    }
    EXPECT_EQ(XPR_OpenFile(nullptr, 1, 0x1000), nullptr);
    EXPECT_EQ(FileContent(m_data.Path() + "old"), "old");
}

TEST_F(XprFile, ReadsToTheEndAndThenNothing)
{
    const std::string content(100000, 'c');
    Put(m_data.Path() + "long", content);
    const XPR_FileHandle file = Open("long", XPR_OPEN_READ, XPR_MODE_EXISTING);
    ASSERT_NE(file, nullptr);
    std::string buffer(70000, ' ');
    EXPECT_EQ(XPR_ReadFile(file, buffer.data(), buffer.size()), 70000);
    EXPECT_EQ(XPR_ReadFile(file, buffer.data(), buffer.size()), 30000);
    EXPECT_EQ(buffer.substr(0, 30000), content.substr(0, 30000));
    EXPECT_EQ(XPR_ReadFile(file, buffer.data(), buffer.size()), 0);

    EXPECT_EQ(XPR_WriteFile(file, "x", 1), -1);
    EXPECT_EQ(Base::Error::GetLastError(), EBADF);
    EXPECT_TRUE(XPR_CloseFile(file));
}

TEST_F(XprFile, SizeAndTimeAreRightAlsoBeyondFourGiB)
{
    constexpr std::int64_t kGiB = std::int64_t{1} << 30;
    const std::pair<std::int64_t, std::int64_t> rows[] = {
        {0, 0}, {3, 1700000000}, {4 * kGiB, 1}, {5 * kGiB + 7, 4102444800}};
    for (const auto& [size, modified] : rows) {
        fs::resize_file(m_data.Path() + "old", static_cast<std::uintmax_t>(size));
        const timespec times[] = {{modified, 0}, {modified, 0}};
        ASSERT_EQ(::utimensat(AT_FDCWD, (m_data.Path() + "old").c_str(), times, 0), 0);
        const XPR_FileHandle file = Open("old", 1, 0x1000);
        ASSERT_NE(file, nullptr);
        XPR_STAT stat{-1, -1};
        EXPECT_TRUE(XPR_FileStat(file, &stat));
        EXPECT_EQ(stat.size, size);
        EXPECT_EQ(stat.modified, modified);
        EXPECT_TRUE(XPR_CloseFile(file));
    }
}

TEST_F(XprFile, WriteThatFitsOnlyInPartFails)
{
    const XPR_FileHandle file = Open("limited", XPR_OPEN_WRITE, XPR_MODE_CREATE);
    ASSERT_NE(file, nullptr);
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit before;
    ::getrlimit(RLIMIT_FSIZE, &before);
    const rlimit small{4096, before.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &small);
    const std::string content(10000, 'c');
    EXPECT_EQ(XPR_WriteFile(file, content.data(), content.size()), -1);
    EXPECT_EQ(Base::Error::GetLastError(), EFBIG);
    ::setrlimit(RLIMIT_FSIZE, &before);
    EXPECT_TRUE(XPR_CloseFile(file));
    EXPECT_FALSE(XPR_CloseFile(nullptr));
}

TEST(XprMutex, OneThreadMayLockTwiceAndOthersWaitUntilBothAreOpened)
{
    XPR_Mutex* mutex = XPR_CreateMutex();
    int value = 0;
    std::thread other;
    {
        XPR_MutexGuard outer(*mutex);
        XPR_MutexGuard inner(*mutex);
        other = std::thread([&] {
            XPR_MutexGuard guard(*mutex);
            value *= 10;
        });
        EXPECT_FALSE(std::async(std::launch::async, [&] { return mutex->native.try_lock(); }).get());
        value = 7;
    }
    other.join();
    EXPECT_EQ(value, 70);
    XPR_DestroyMutex(mutex);
    XPR_DestroyMutex(nullptr);
}

} // namespace
