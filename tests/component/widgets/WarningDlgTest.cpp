#include "VantorGUIToolkit/Widgets/WarningDlg.h"
#include "component/widgets/GuiDriving.h"

#include <QLabel>
#include <QPushButton>

#include <memory>

using namespace VantorGUIToolkit;

namespace {

using Act = std::function<void(QWidget*)>;

Act ClickOn(const char* name)
{
    return [name](QWidget* dialog) { dialog->findChild<QPushButton*>(name)->click(); };
}

Act Key(int key)
{
    return [key](QWidget* dialog) { Press(dialog->focusWidget(), key); };
}

} // namespace

TEST(WarningDlg, OneMeansYesAndEverythingElseIsNo)
{
    const std::tuple<const char*, Act, int> rows[] = {
        {"yes", ClickOn("yesButton"), 1},
        {"no", ClickOn("noButton"), 0},
        {"return", Key(Qt::Key_Return), 1},
        {"escape", Key(Qt::Key_Escape), 0},
        {"closed", [](QWidget* dialog) { dialog->close(); }, 0},
    };
    for (const auto& [name, act, answer] : rows) {
        QWidget parent;
        WhenDialogOpens(act);
        EXPECT_EQ(CWarningDlg::CheckMessageInfo("Save?", "Information", &parent), answer) << name;
    }
}

TEST(WarningDlg, ReturnDoesNotDoWhatCannotBeUndone)
{
    WhenDialogOpens(Key(Qt::Key_Return));
    EXPECT_EQ(CWarningDlg::CheckDangerousAction("Gone for good.", "Remove", "Remove", nullptr), 0);
    WhenDialogOpens(ClickOn("yesButton"));
    EXPECT_EQ(CWarningDlg::CheckDangerousAction("Gone for good.", "Remove", "Remove", nullptr), 1);
}

TEST(WarningDlg, AParentThatGoesAwayAnswersNo)
{
    auto parent = std::make_unique<QWidget>();
    WhenDialogOpens([&](QWidget*) { parent.reset(); });
    EXPECT_EQ(CWarningDlg::CheckMessageInfo("Save?", "Information", parent.get()), 0);
}

TEST(WarningDlg, ALongListOfFailuresLeavesTheButtonsOnTheScreen)
{
    QSize size;
    WhenDialogOpens([&](QWidget* dialog) {
        size = dialog->size();
        static_cast<QDialog*>(dialog)->reject();
    });
    CWarningDlg::ShowError(QString("Camera: not reached\n").repeated(300), "Error", nullptr);
    EXPECT_GT(size.height(), 200);
    EXPECT_LT(size.height(), 560);
}

TEST(WarningDlg, NamesOfDevicesAreNoMarkup)
{
    QString shown;
    WhenDialogOpens([&](QWidget* dialog) {
        auto* label = dialog->findChild<QLabel*>("warningText");
        shown = label->textFormat() == Qt::PlainText ? label->text() : "markup";
        dialog->close();
    });
    CWarningDlg::ShowError("<b>Gate</b>", "Error", nullptr);
    EXPECT_EQ(shown, "<b>Gate</b>");
}
