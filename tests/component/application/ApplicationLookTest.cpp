#include "ui/Application/ApplicationLook.h"

#include "VantorGUIToolkit/Toolkit.h"
#include "support/CapturedLog.h"
#include "support/TestDataRoot.h"

#include <gtest/gtest.h>

#include <QApplication>

#include <filesystem>

using VantorGUIToolkit::CToolkit;

namespace {

/// Keeps what goes to Qt's own log.
class CapturedQtLog
{
public:
    CapturedQtLog()
    {
        Lines().clear();
        m_former = qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& text) {
            if (type == QtWarningMsg)
                Lines().push_back(text.toStdString());
        });
    }
    ~CapturedQtLog() { qInstallMessageHandler(m_former); }

    static std::vector<std::string>& Lines()
    {
        static std::vector<std::string> lines;
        return lines;
    }

private:
    QtMessageHandler m_former;
};

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

TEST_F(TheLook, TellsOfEveryPackageThatIsMissing)
{
    video::CApplicationLook(kit, "BlueSkin", 1).LoadSkin();
    EXPECT_EQ(log.Errors(), (std::vector<std::string>{"fail to load VantorGUIToolKitBlackRedSkin.",
                                                      "Failed to load ClientCommSkin."}));
    EXPECT_EQ(qtLog.Lines(), (std::vector<std::string>{QtLine("VantorGUIToolKitBlueSkin.rcc", " failed"),
                                                       QtLine("ClientCommon.rcc", " failed"),
                                                       QtLine("Video.C.rcc", " failed")}));
}

TEST_F(TheLook, LoadsThePackagesOfTheSkin)
{
    const std::vector<std::string> packages = {"VantorGUIToolKitBlueSkin.rcc", "ClientCommon.rcc",
                                               "Video.C.rcc"};
    std::vector<std::string> told;
    for (const std::string& package : packages) {
        AddPackage(package);
        told.push_back(QtLine(package, " Success"));
    }
    video::CApplicationLook(kit, "BlueSkin", 1).LoadSkin();
    EXPECT_EQ(log.Messages(Base::LogLevel::Info),
              (std::vector<std::string>{"success to load VantorGUIToolKitBlackRedSkin.",
                                        "success to load ClientCommSkin."}));
    EXPECT_EQ(qtLog.Lines(), told);
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
