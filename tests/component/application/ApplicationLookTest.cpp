#include "ui/Application/ApplicationLook.h"

#include "VantorGUIToolkit/Toolkit.h"
#include "support/CapturedLog.h"
#include "support/CapturedQtLog.h"
#include "support/TestDataRoot.h"

#include <gtest/gtest.h>

#include <QApplication>

#include <filesystem>

using VantorGUIToolkit::CToolkit;

namespace {

/// A toolkit that finds its packages in a folder of the test.
class TheLook : public testing::Test
{
protected:
    TheLook()
    {
        std::filesystem::create_directories(bin);
        std::filesystem::create_directories(skins);
        kit.setTargetPath(QString::fromStdString(bin));
    }
    ~TheLook() override
    {
        qApp->setStyleSheet({});
        CToolkit().setLocale(VantorGUIToolkit::English);
    }

    void AddPackage(const std::string& name) const { std::filesystem::copy_file(TEST_SKIN, skins + name); }
    std::string QtLine(const std::string& package, const char* end) const
    {
        return "---scc--- LoadSkin = " + bin + "../plugins/skins/" + package + end;
    }

    TestDataRoot root;
    CapturedLog log;
    CapturedQtLog qtLog;
    const std::string bin = root.Path() + "bin/";
    const std::string skins = root.Path() + "plugins/skins/";
    CToolkit kit;
};

TEST_F(TheLook, LoadsThePackagesOfTheSkinAndTellsOfThoseThatAreMissing)
{
    std::vector<std::string> missed;
    std::vector<std::string> loaded;
    for (const char* package : {"VantorGUIToolKitBlueSkin.rcc", "ClientCommon.rcc", "Video.C.rcc"}) {
        missed.push_back(QtLine(package, " failed"));
        loaded.push_back(QtLine(package, " Success"));
    }
    video::CApplicationLook(kit, "BlueSkin", 1).LoadSkin();
    EXPECT_EQ(log.Errors(), (std::vector<std::string>{"fail to load VantorGUIToolKitBlackRedSkin.",
                                                      "Failed to load ClientCommSkin."}));
    EXPECT_EQ(qtLog.Lines(), missed);

    qtLog.Lines().clear();
    for (const char* package : {"VantorGUIToolKitBlueSkin.rcc", "ClientCommon.rcc", "Video.C.rcc"})
        AddPackage(package);
    video::CApplicationLook(kit, "BlueSkin", 1).LoadSkin();
    EXPECT_EQ(log.Messages(Base::LogLevel::Info),
              (std::vector<std::string>{"success to load VantorGUIToolKitBlackRedSkin.",
                                        "success to load ClientCommSkin."}));
    EXPECT_EQ(qtLog.Lines(), loaded);
    EXPECT_EQ(kit.skinPackages().size(), 3);
}

TEST_F(TheLook, JoinsAndFillsTheSheetsAndKeepsTheStyleWhereOursIsMissing)
{
    AddPackage("Video.C.rcc");
    video::CApplicationLook look(kit, "GreyRedSkin", 34);
    look.LoadSkin();
    look.LoadStyle();
    EXPECT_EQ(qtLog.Lines().back(), "[scc][CVantorApplication::LoadStyle]The CVantorStyle does not exist.");

    const QString sheet = qApp->styleSheet();
    int at = -1;
    for (const char* part : {"bright rtl", "#table", "#system", "#video"}) {
        const int found = sheet.indexOf(part);
        EXPECT_GT(found, at) << part << " in " << sheet.toStdString();
        at = found;
    }
    EXPECT_FALSE(sheet.contains("#mac"));
}

TEST_F(TheLook, TellsTheToolkitLanguageDirectionAndTheConfiguredSkin)
{
    for (const int language : {1, 3, 12, 13, 14, 33, 34, 35}) {
        video::CApplicationLook(kit, "BlueSkin", language).InitGuiToolKit("NeutralSkin");
        EXPECT_EQ(kit.layoutDirection() == Qt::RightToLeft, language == 13 || language == 34) << language;
        EXPECT_EQ(kit.language(), language);
        EXPECT_EQ(kit.skinType(), "NeutralSkin");
    }
}

} // namespace
