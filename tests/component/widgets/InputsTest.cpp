#include "VantorGUIToolkit/Widgets/FormGrid.h"
#include "VantorGUIToolkit/Widgets/PasswordEdit.h"
#include "VantorGUIToolkit/Widgets/PathComboBox.h"
#include "VantorGUIToolkit/Widgets/SearchEdit.h"
#include "VantorGUIToolkit/Widgets/Switch.h"
#include "VantorGUIToolkit/Widgets/TableView.h"
#include "component/widgets/GuiDriving.h"
#include "support/TestDataRoot.h"

#include <QDir>
#include <QLabel>
#include <QStandardItemModel>
#include <QToolButton>

using namespace VantorGUIToolkit;

TEST(PathComboBox, ChoosesAFolderAndKeepsItsPathAsItWasSet)
{
    const TestDataRoot root;
    const QString start = QString::fromStdString(root.Path()) + "old";
    const QString chosen = QString::fromStdString(root.Path()) + "new";
    ASSERT_TRUE(QDir().mkpath(start) && QDir().mkpath(chosen));
    CPathComboBox combo;
    combo.setFileMode(QFileDialog::Directory);
    combo.setPath(start);
    EXPECT_EQ(combo.currentText(), start);
    QStringList told;
    QObject::connect(&combo, &CPathComboBox::SignalPathChanged, [&](const QString& path) { told << path; });

    WhenDialogOpens([](QWidget* dialog) { dialog->close(); });
    combo.showPopup();
    EXPECT_EQ(combo.path(), start);

    WhenDialogOpens([&](QWidget* dialog) {
        auto* files = qobject_cast<QFileDialog*>(dialog);
        ASSERT_TRUE(files);
        EXPECT_EQ(files->fileMode(), QFileDialog::Directory);
        files->setDirectory(chosen);
        static_cast<QDialog*>(files)->done(QDialog::Accepted);
    });
    combo.findChild<QToolButton*>()->click();
    EXPECT_EQ(combo.path(), chosen);
    EXPECT_EQ(combo.count(), 1);
    EXPECT_TRUE(combo.toolTip().contains(QDir::toNativeSeparators(chosen)));
    EXPECT_EQ(told, QStringList(chosen));
}

TEST(FormGrid, AnErrorMarksItsFieldUntilItIsTakenAway)
{
    CFormGrid form;
    auto* name = new QLineEdit(&form);
    auto* port = new QLineEdit(&form);
    form.AddRow("&Name", name);
    form.AddRow("&Port", port);
    EXPECT_EQ(port->accessibleName(), "Port");
    EXPECT_FALSE(form.FocusFirstError());
    form.show();

    form.setFieldError(port, "Too large.");
    const auto shown = [&] {
        QStringList texts;
        for (const QLabel* label : form.findChildren<QLabel*>())
            if (label->isVisible())
                texts << label->text();
        return texts;
    };
    EXPECT_TRUE(shown().contains("Too large."));
    EXPECT_TRUE(port->property("invalid").toBool());
    EXPECT_FALSE(name->property("invalid").toBool());
    EXPECT_TRUE(form.FocusFirstError());
    EXPECT_EQ(form.focusWidget(), port);

    form.setFieldError(port, {});
    EXPECT_FALSE(shown().contains("Too large."));
    EXPECT_FALSE(port->property("invalid").toBool());
    EXPECT_FALSE(form.HasErrors());
}

TEST(PasswordEdit, HidesTheLettersAgainWhenItIsHiddenOrDisabled)
{
    CPasswordEdit edit;
    edit.show();
    const auto reveal = [&] { edit.findChild<QToolButton*>()->click(); };
    EXPECT_EQ(edit.echoMode(), QLineEdit::Password);
    reveal();
    EXPECT_EQ(edit.echoMode(), QLineEdit::Normal);
    edit.hide();
    EXPECT_EQ(edit.echoMode(), QLineEdit::Password);
    edit.show();
    reveal();
    edit.setEnabled(false);
    EXPECT_EQ(edit.echoMode(), QLineEdit::Password);
}

TEST(SearchEdit, EscapeClearsTheTextAndThenBelongsToTheDialog)
{
    QWidget window;
    auto* edit = new CSearchEdit(&window);
    edit->setText("gate");
    QKeyEvent first(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QApplication::sendEvent(edit, &first);
    EXPECT_EQ(edit->text(), "");
    QKeyEvent second(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    second.accept();
    QApplication::sendEvent(edit, &second);
    EXPECT_FALSE(second.isAccepted());
}

TEST(Switch, TurnsWithTheSpaceBarAndMirrorsItsTrack)
{
    CSwitch control("Recording");
    control.resize(160, 24);
    Press(&control, Qt::Key_Space, " ");
    EXPECT_TRUE(control.isChecked());
    const auto inked = [&](int from, int to) {
        const QImage image = control.grab().toImage();
        const QRgb background = image.pixel(image.width() - 1, 0);
        for (int x = from; x < to; ++x)
            if (image.pixel(x, image.height() / 2) != background)
                return true;
        return false;
    };
    control.setText({});
    EXPECT_TRUE(inked(0, 60));
    EXPECT_FALSE(inked(100, 160));
    control.setLayoutDirection(Qt::RightToLeft);
    EXPECT_FALSE(inked(0, 60));
    EXPECT_TRUE(inked(100, 160));
}

TEST(TableView, SaysWhenThereIsNoRow)
{
    CTableView table;
    table.resize(400, 300);
    QStandardItemModel model(0, 2);
    table.setModel(&model);
    table.SetEmptyState("search", "Nothing found", "No device has a name like this.");
    table.show();
    auto* title = table.findChild<QLabel*>("emptyTitle");
    ASSERT_TRUE(title);
    EXPECT_TRUE(title->isVisible());
    model.appendRow(new QStandardItem("Recorder"));
    EXPECT_FALSE(title->isVisible());
    model.clear();
    EXPECT_TRUE(title->isVisible());
}
