#include "system/ClientRun.h"

#include "Base/FileUtil.h"
#include "Base/StringUtil.h"
#include "support/FileContent.h"
#include "support/WaitUntil.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

#include <stdexcept>

namespace {

constexpr std::chrono::seconds kPatience{30};
constexpr int kEndMs = 15000;

/// Ends the test: what comes next would wait for its time too.
[[noreturn]] void GiveUp(const std::string& what)
{
    throw std::runtime_error(what);
}

bool Holds(const QJsonObject& event, const QJsonObject& fields)
{
    for (auto field = fields.begin(); field != fields.end(); ++field)
        if (event.value(field.key()) != field.value())
            return false;
    return true;
}

std::string Text(const QJsonObject& fields)
{
    return QJsonDocument(fields).toJson(QJsonDocument::Compact).toStdString();
}

/// The X server's errors that a program has reported. Qt may ask for the place of a frame that the window
/// manager has just taken away.
std::string Complaints(const std::string& output)
{
    std::string complaints;
    for (const std::string& line : Base::StringUtil::Split(output, '\n'))
        if (line.find("XCB error") != std::string::npos &&
            line.find("(TranslateCoords)") == std::string::npos)
            complaints += line + '\n';
    return complaints;
}

} // namespace

ClientRun::ClientRun(PrivateDisplay::WindowManager manager, int dpi) : display(manager, dpi)
{
    setenv("QT_QPA_PLATFORM", "xcb", 1);
}

ClientRun::~ClientRun()
{
    if (m_framework && !m_framework->ExitStatus())
        End();
}

void ClientRun::Start(const QStringList& options, const std::string& binFolder)
{
    const std::string report = component.Path() + "report";
    std::vector<std::string> command = {binFolder.empty()
                                            ? Base::FileUtil::GetCurExeDir() + "Vantor.Framework"
                                            : binFolder + "Vantor.Framework",
                                        "--report", report};
    for (const QString& option : options)
        command.push_back(option.toStdString());
    QFile::remove(QString::fromStdString(report));
    m_events.clear();
    m_read = 0;
    m_framework = std::make_unique<CChildProcess>();
    std::string error;
    if (!m_framework->Start(command, component.Path() + "output", error))
        GiveUp(error);
}

void ClientRun::End()
{
    AskToEnd();
    EXPECT_EQ(m_framework->WaitForExit(kEndMs).value_or(-1000), 0) << component.Output();
    EXPECT_EQ(component.ProcessId(), 0);
    for (const std::string& output : {component.Output(), FileContent(Folder() + "component.out")})
        EXPECT_EQ(Complaints(output), "");
}

void ClientRun::Kill()
{
    m_framework->Signal(SIGKILL);
    m_framework->WaitForExit(kEndMs);
}

void ClientRun::ReadReport()
{
    QFile file(QString::fromStdString(component.Path() + "report"));
    if (!file.open(QIODevice::ReadOnly) || !file.seek(m_read))
        return;
    const QByteArray text = file.readAll();
    const int end = text.lastIndexOf('\n') + 1;
    m_read += end;
    for (const QByteArray& line : text.left(end).split('\n'))
        if (!line.isEmpty())
            m_events.append(QJsonDocument::fromJson(line).object());
}

int ClientRun::Count(const QJsonObject& fields)
{
    ReadReport();
    return static_cast<int>(std::count_if(m_events.begin(), m_events.end(),
                                          [&](const QJsonObject& event) { return Holds(event, fields); }));
}

QJsonObject ClientRun::Await(const QJsonObject& fields, int times)
{
    if (!WaitUntil([&] { return Count(fields) >= times; }, kPatience))
        GiveUp(Text(fields) + " did not come " + std::to_string(times) + " times; the last was " +
               (m_events.isEmpty() ? "nothing" : Text(m_events.last())) + '\n' + component.Output());
    for (int index = m_events.size() - 1;; --index)
        if (Holds(m_events[index], fields))
            return m_events[index];
}

bool ClientRun::HasItem(const QString& name)
{
    ReadReport();
    for (int index = m_events.size() - 1; index >= 0; --index)
        if (m_events[index]["event"] == "layout")
            return m_events[index]["items"].toObject().contains(name);
    return false;
}

ClientRun::Area ClientRun::Item(const QString& name)
{
    if (!WaitUntil([&] { return HasItem(name); }, kPatience))
        GiveUp("there is no " + name.toStdString());
    const QJsonArray area = Await({{"event", "layout"}})["items"].toObject()[name].toArray();
    return {area[0].toInt(), area[1].toInt(), area[2].toInt(), area[3].toInt()};
}

void ClientRun::Click(const Area& area)
{
    user.Click(area.x + area.width / 2, area.y + area.height / 2);
}

void ClientRun::ClickForKeys(const Area& area, Window window)
{
    Click(area);
    EXPECT_TRUE(WaitUntil([&] { return user.Focused() == window; }))
        << "the keyboard is with " << user.Focused() << ", not with " << window;
}

ClientRun::Window ClientRun::OpenTab(const QString& name)
{
    const int before = Count({{"event", "tab"}, {"name", name}, {"state", "embedded"}});
    Click("nav:" + name);
    const Window page = AwaitEmbedded(name, before + 1);
    AwaitSeen(page);
    return page;
}

ClientRun::Window ClientRun::AwaitEmbedded(const QString& name, int times)
{
    const Window page = static_cast<Window>(
        Await({{"event", "tab"}, {"name", name}, {"state", "embedded"}}, times)["wid"].toDouble());
    m_topLevel = user.TopLevelOf(page);
    return page;
}

void ClientRun::AwaitSeen(Window page)
{
    const auto isSeen = [&] {
        return user.IsViewable(page) && user.AreaOf(page) == user.AreaOf(user.HolderOf(page));
    };
    if (!WaitUntil(isSeen, kPatience))
        GiveUp("the page is not to be seen");
    const Area area = *user.AreaOf(page);
    EXPECT_TRUE(WaitUntil([&] {
        const auto picture = user.PictureOf(area);
        return std::any_of(picture.begin(), picture.end(), [&](auto pixel) { return pixel != picture[0]; });
    })) << "the page is empty";
}

void ClientRun::Write(const Area& line, Window window, const std::string& text)
{
    ClickForKeys(line, window);
    user.PressWith(PointerAndKeys::Control, 'a');
    user.Type(text);
}

void ClientRun::ExpectText(const Area& line, Window window, const std::string& text)
{
    ClickForKeys(line, window);
    user.PressWith(PointerAndKeys::Control, 'a');
    user.PressWith(PointerAndKeys::Control, 'c');
    std::string copied;
    EXPECT_TRUE(WaitUntil([&] { return (copied = user.CopiedText()) == text; })) << copied;
}
