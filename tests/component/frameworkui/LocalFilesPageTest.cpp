#include "framework/ui/pages/LocalFilesPage.h"

#include "framework/core/Resources.h"
#include "support/TestDataRoot.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDesktopServices>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QStackedWidget>
#include <QTableView>

using namespace framework;
using protocol::LocalFileQueryItem;
using protocol::LocalFileType;
using testing::ElementsAre;

namespace {

/// Notes the questions; the test answers them.
struct FakeSource : ILocalFileSource
{
    void Query(const protocol::LocalFileQuery& query, OnFiles onFiles) override
    {
        queries.push_back(query);
        answers.push_back(std::move(onFiles));
    }
    void Resolve(const protocol::LocalFile& file, OnPlace onPlace) override
    {
        onPlace(
            {AskOutcome::Answered, QString::fromStdString(places[file.guid]), !places[file.guid].empty()});
    }
    ComponentState State() const override { return state; }

    void Answer(std::size_t question, std::vector<LocalFileQueryItem> files,
                AskOutcome outcome = AskOutcome::Answered)
    {
        answers.at(question)(outcome, std::make_shared<const std::vector<LocalFileQueryItem>>(files));
    }

    ComponentState state = ComponentState::Ready;
    std::map<std::string, std::string> places; ///< by identifier
    std::vector<protocol::LocalFileQuery> queries;
    std::vector<OnFiles> answers;
};

LocalFileQueryItem File(const char* guid, std::int64_t time, std::int32_t kib, std::int64_t seconds)
{
    LocalFileQueryItem file;
    file.type = LocalFileType::Video;
    file.fileGuid = guid;
    file.fileName = guid;
    file.timeOccur.count = file.timeBegin.count = time;
    file.timeEnd.count = time + seconds;
    file.filSize = kib;
    return file;
}

class Opened : public QObject
{
    Q_OBJECT

public:
    Opened() { QDesktopServices::setUrlHandler("file", this, "Take"); }
    ~Opened() override { QDesktopServices::unsetUrlHandler("file"); }
    Q_INVOKABLE void Take(const QUrl& url) { paths << url.toLocalFile(); }
    QStringList paths;
};

struct LocalFilesPageTest : testing::Test
{
    LocalFilesPageTest()
    {
        DeviceEntry entry;
        entry.name = "Gate";
        entry.address = "192.0.2.10";
        std::string error;
        devices::DeviceStatus status;
        status.id = resources.Add(entry, error);
        status.state = devices::SessionState::Online;
        status.channels = {{1, QXNET_CHANNEL_ONLINE, "Camera 01"}, {2, QXNET_CHANNEL_ONLINE, {}}};
        resources.Hear(status);
        page = std::make_unique<CLocalFilesPage>(source, resources);
        page->show();
    }

    std::vector<std::string> NamesBy(int column)
    {
        table().sortByColumn(column, Qt::AscendingOrder);
        std::vector<std::string> names;
        for (int row = 0; row < table().model()->rowCount(); ++row)
            names.push_back(table().model()->index(row, 0).data().toString().toStdString());
        return names;
    }
    QWidget* State() const { return page->findChild<QStackedWidget*>()->currentWidget(); }
    /// The title of what is shown instead of the list; empty while there is one.
    std::string Reason() const
    {
        const auto* title = State()->findChild<QLabel*>("emptyTitle");
        return State()->objectName() == "reason" ? title->text().toStdString() : std::string();
    }
    QTableView& table() { return *page->findChild<QTableView*>("localFilesTable"); }

    TestDataRoot root;
    CResources resources{root.Path() + "resources.json",
                         Base::Encrypt::ParamsOf(Base::Encrypt::RandomKeyText(), "test").value(),
                         [](const ResourceChange&) {}};
    FakeSource source;
    std::unique_ptr<CLocalFilesPage> page;
};

TEST_F(LocalFilesPageTest, SortsByWhatTimesLengthsAndSizesAreAndShowsAndSearchesTheNames)
{
    ASSERT_EQ(source.queries.size(), 1u);
    EXPECT_EQ(source.queries[0].contition, protocol::LocalFileCondition::Group);
    EXPECT_EQ(source.queries[0].guid, resources.Groups()[0].guid);
    source.Answer(0,
                  {File("a", 2000000000, 900, 3700), File("b", 999999999, 10000, 59), File("c", 5, 2, 600)});
    constexpr int kTime = 3;
    EXPECT_THAT(NamesBy(kTime), ElementsAre("c", "b", "a"));
    EXPECT_THAT(NamesBy(kTime + 1), ElementsAre("b", "c", "a"));
    EXPECT_THAT(NamesBy(kTime + 2), ElementsAre("c", "a", "b"));
    page->findChild<QLineEdit*>("search")->setText("B");
    EXPECT_THAT(NamesBy(kTime), ElementsAre("b"));
    EXPECT_EQ(page->FileCount(), 3);
    page->Reload();
    source.Answer(1, {File("b\n\u202Egpj.exe", 1, 1, 1)});
    EXPECT_THAT(NamesBy(kTime), ElementsAre("b\uFFFD\uFFFDgpj.exe"));
}

TEST_F(LocalFilesPageTest, SaysWhyThereIsNoList)
{
    source.Answer(0, {}, AskOutcome::NoAnswer);
    EXPECT_EQ(Reason(), "The list cannot be shown");
    State()->findChild<QAbstractButton*>("emptyAction")->click();
    source.Answer(1, {});
    EXPECT_EQ(Reason(), "No pictures");
    source.state = ComponentState::Waiting;
    page->OnComponentChanged();
    EXPECT_EQ(Reason(), "Restarting");
    EXPECT_EQ(source.queries.size(), 2u);
    source.state = ComponentState::Ready;
    page->OnComponentChanged();
    source.Answer(2, {File("a", 1, 1, 1)});
    EXPECT_EQ(Reason(), "");
    EXPECT_EQ(page->FileCount(), 1);
}

TEST_F(LocalFilesPageTest, TakesOnlyTheAnswerToTheLatestQuestion)
{
    page->findChild<QAbstractButton*>("clips")->click();
    QLineEdit* camera = page->findChild<QComboBox*>("cameras")->lineEdit();
    camera->setText("a camera of elsewhere");
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QApplication::sendEvent(camera, &enter);
    ASSERT_EQ(source.queries.size(), 3u);
    EXPECT_EQ(source.queries[2].type, LocalFileType::Video);
    EXPECT_EQ(source.queries[2].contition, protocol::LocalFileCondition::Camera);
    EXPECT_EQ(source.queries[2].guid, "a camera of elsewhere");
    camera->setText("camera 0");
    QApplication::sendEvent(camera, &enter);
    ASSERT_EQ(source.queries.size(), 4u);
    EXPECT_EQ(source.queries[3].guid, resources.Channels({})[0].guid) << "a part of a name";
    source.Answer(3, {File("new", 1, 1, 1)});
    source.Answer(0, {File("old", 1, 1, 1), File("older", 1, 1, 1)});
    EXPECT_EQ(page->FileCount(), 1);
}

TEST_F(LocalFilesPageTest, GivesPicturesAndClipsToTheDesktopAndOfOthersTheFolder)
{
    const Opened opened;
    source.places = {{"clip", "/media/a b.avi"}, {"program", "/media/run.sh"}};
    source.Answer(0, {File("clip", 3, 1, 1), File("program", 2, 1, 1), File("gone", 1, 1, 1)});
    for (int row = 0; row < 3; ++row) {
        table().selectRow(row);
        page->findChild<QAbstractButton*>("openFile")->click();
    }
    EXPECT_EQ(opened.paths, QStringList({"/media/a b.avi", "/media"}));
    EXPECT_TRUE(page->findChild<QWidget*>("banner")->isVisible());
}

} // namespace

#include "LocalFilesPageTest.moc"
