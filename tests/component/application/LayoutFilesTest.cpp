#include "ui/Application/LayoutFiles.h"

#include "Base/FileUtil.h"
#include "support/CapturedLog.h"
#include "support/TestDataRoot.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <optional>

namespace fs = std::filesystem;

namespace {

constexpr const char* kSound = "<Config><Page/></Config>";

std::optional<std::string> Content(const std::string& path)
{
    std::string text;
    return Base::FileUtil::ReadFile(path, text) ? std::optional(text) : std::nullopt;
}

/// A data folder, and a program's folder with its original layout.
struct Folders
{
    Folders()
    {
        fs::create_directories(data);
        fs::create_directories(program + "WidgetLayout");
        fs::copy_file(DEFAULT_WIDGET_LAYOUT, original);
    }

    void Fill(const char* content) const
    {
        for (const std::string& file : {custom, layout})
            ASSERT_TRUE(Base::FileUtil::WriteFileAtomically(file, content));
    }

    void Check() const
    {
        video::CheckAndGenerateCustomWidgetLayoutConfig(QString::fromStdString(data),
                                                        QString::fromStdString(program));
    }

    TestDataRoot root;
    CapturedLog log;
    const std::string data = root.Path() + "data/";
    const std::string program = root.Path() + "bin/";
    const std::string original = program + "WidgetLayout/WidgetLayout.xml";
    const std::string custom = data + "CustomWidgetLayout.xml";
    const std::string layout = data + "WidgetLayout.xml";
};

TEST(TheLayoutFiles, AreLeftAloneWhenTheyLoad)
{
    Folders folders;
    folders.Fill(kSound);
    folders.Check();
    EXPECT_EQ(Content(folders.custom), kSound);
    EXPECT_EQ(Content(folders.layout), kSound);
    EXPECT_TRUE(folders.log.Lines().empty());
}

TEST(TheLayoutFiles, AreMadeAnewWhenTheyAreBroken)
{
    for (const char* broken : {"<Config><Page>", "", "no XML"}) {
        Folders folders;
        folders.Fill(broken);
        folders.Check();
        EXPECT_EQ(Content(folders.custom), "<Config/>") << broken;
        EXPECT_EQ(Content(folders.layout), Content(folders.original)) << broken;
        EXPECT_TRUE(folders.log.Errors().empty()) << broken;
    }
}

TEST(OnlyTheGeneralLayout, IsMadeWhenItIsMissing)
{
    Folders folders;
    folders.Check();
    EXPECT_FALSE(fs::exists(folders.custom));
    EXPECT_EQ(Content(folders.layout), Content(folders.original));
    EXPECT_TRUE(folders.log.Lines().empty());
}

TEST(ARepairThatFails, IsLogged)
{
    Folders folders;
    fs::create_directories(folders.custom + "/in the way");
    fs::remove(folders.original);
    folders.Check();
    EXPECT_EQ(folders.log.Errors(),
              (std::vector<std::string>{"Failed to open maintain/CustomWidgetLayout.xml for write.",
                                        "Failed to copy maintain/CustomWidgetLayout.xml."}));
}

} // namespace
