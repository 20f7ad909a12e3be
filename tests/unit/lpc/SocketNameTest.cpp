#include "LPC_Wire/SocketName.h"
#include "LPC_Wire/LocalSocket.h"

#include "support/TestDataRoot.h"

#include <gtest/gtest.h>

namespace {

/// The digits come from `printf 'name\n/data/' | sha256sum`.
TEST(SocketName, IsAHashOfChannelAndDataRoot)
{
    EXPECT_EQ("32858f60732fa729", lpc::SocketFileName("name", "/data/"));
    EXPECT_NE(lpc::SocketFileName("name", "/data/"), lpc::SocketFileName("name", "/other/"));
    EXPECT_NE(lpc::SocketFileName("name", "/data/"), lpc::SocketFileName("nam", "e/data/"));
}

TEST(SocketName, LiesInAFolderForTheUserAlone)
{
    const TestDataRoot root;
    std::string why;
    const std::string path = lpc::SocketPath("name", why);
    EXPECT_EQ(root.Path() + "vantor/" + lpc::SocketFileName("name", root.Path()), path);
    const auto mode = [&] { return std::filesystem::status(root.Path() + "vantor").permissions(); };
    EXPECT_EQ(std::filesystem::perms::owner_all, mode());

    std::filesystem::permissions(root.Path() + "vantor", std::filesystem::perms::all);
    EXPECT_FALSE(lpc::SocketPath("name", why).empty());
    EXPECT_EQ(std::filesystem::perms::owner_all, mode());
}

TEST(SocketName, SaysWhyThereIsNone)
{
    const TestDataRoot root;
    std::string why;
    std::filesystem::create_directory_symlink("/tmp", root.Path() + "vantor");
    EXPECT_EQ("", lpc::SocketPath("name", why));
    EXPECT_NE(std::string::npos, why.find("no folder")) << why;

    const std::string deep = root.Path() + std::string(100, 'd');
    std::filesystem::create_directory(deep);
    setenv("XDG_RUNTIME_DIR", deep.c_str(), 1);
    EXPECT_EQ("", lpc::SocketPath("name", why));
    EXPECT_NE(std::string::npos, why.find("longer than the 107 bytes")) << why;
}

} // namespace
