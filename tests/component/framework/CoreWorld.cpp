#include "component/framework/CoreWorld.h"

#include <algorithm>
#include <chrono>
#include <filesystem>

namespace {

constexpr std::chrono::seconds kLimit{30};
constexpr std::uint32_t kRequestMs = 30000;

} // namespace

void Texts::Add(const std::string& text)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_texts.push_back(text);
    m_changed.notify_all();
}

bool Texts::Take(const std::string& beginning)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    const auto find = [&] {
        return std::find_if(m_texts.begin() + m_taken, m_texts.end(),
                            [&](const std::string& text) { return text.rfind(beginning, 0) == 0; });
    };
    if (!m_changed.wait_for(lock, kLimit, [&] { return find() != m_texts.end(); }))
        return false;
    m_taken = find() + 1 - m_texts.begin();
    return true;
}

std::vector<std::string> Texts::All() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_texts;
}

std::size_t Texts::CountOf(const std::string& beginning) const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return static_cast<std::size_t>(
        std::count_if(m_texts.begin(), m_texts.end(),
                      [&](const std::string& text) { return text.rfind(beginning, 0) == 0; }));
}

void Events::OnComponentState(framework::ComponentState state, const std::string& detail)
{
    texts.Add(std::string("state ") + NameOf(state) + ": " + detail);
}

void Events::OnNotice(const framework::JournalEntry& entry)
{
    texts.Add("notice " + entry.text);
}

void Events::OnOperation(const framework::JournalEntry& entry)
{
    texts.Add("operation " + entry.user + ": " + entry.text);
}

void Events::OnFrameResize(const std::string& window, int width, int height)
{
    texts.Add("resize " + window + " " + std::to_string(width) + "x" + std::to_string(height));
}

TestClient::TestClient(const std::string& name)
{
    EXPECT_TRUE(lpcclient::Init(name, false));
    EXPECT_TRUE(lpcclient::ConnectToServer(lpc::kFrameworkServerName)) << lpcclient::GetLPCLastError();
    const auto take = [](const lpc::CallBackData& data, void* user) {
        auto* const self = static_cast<TestClient*>(user);
        const std::string protocol = data.Header("protocol");
        if (data.requestId != 0 && self->onRequest)
            self->onRequest(data);
        self->received.Add((protocol.empty() ? data.Header("method") : protocol) + " " + data.body);
        return true;
    };
    EXPECT_TRUE(lpcclient::SetInvokeCallBack(take, this));
}

TestClient::~TestClient()
{
    EXPECT_TRUE(lpcclient::SetInvokeCallBack({}, nullptr));
    EXPECT_TRUE(lpcclient::DisconnectToServer());
    EXPECT_TRUE(lpcclient::Uninit());
}

TestClient::Answer TestClient::Request(const std::string& method, const std::string& url,
                                       const std::string& body)
{
    lpc::Message answer;
    lpc::RequestId id = 0;
    const lpc::Message request{{{"protocol", "http"}, {"method", method}, {"url", url}}, body};
    if (!lpcclient::SendEx(answer, request, id, kRequestMs))
        return {"error " + std::to_string(lpcclient::GetLPCLastError()), {}};
    return {answer.headers[lpc::kStatusHeader], answer.body};
}

void TestClient::Notify(const std::string& method)
{
    EXPECT_TRUE(lpcclient::Notify({{{"method", method}}, {}}));
}

void TestClient::BecomeReady()
{
    EXPECT_EQ(Request("POST", "/vantor/v1/internal/framework/register",
                      R"({"componentRegisterInfo":{"supportUrlList":[]}})")
                  .status,
              "200");
    Notify("initFinish");
    EXPECT_TRUE(received.Take("switchUserUpdateFrame"));
}

CoreTest::CoreTest()
{
    // Of components that the core starts.
    unsetenv("FAKE_COMPONENT_WAY");
}

void CoreTest::StartCore(const std::string& program)
{
    core.reset();
    framework::FrameworkOptions options{
        Folder(), program, root.Path() + "output", endLimit, answerLimit, connectDevices, {}};
    options.deviceLimits.watch = options.deviceLimits.again = std::chrono::milliseconds(20);
    core = std::make_unique<framework::CFrameworkCore>(events, options);
    std::string error;
    ASSERT_TRUE(core->Start(error)) << error;
}

void CoreTest::Block(const std::string& name)
{
    std::filesystem::remove(Folder() + name);
    std::filesystem::create_directories(Folder() + name + "/in the way");
}

std::string CoreTest::AddDevice(const std::string& name, int port, int channels)
{
    std::string error;
    const std::string guid =
        core->Resources().Add({name, "192.0.2.1", port, kUserName, kPassword, false}, error);
    EXPECT_NE(guid, "") << error;
    devices::DeviceStatus status;
    status.id = guid;
    status.state = devices::SessionState::Online;
    status.info.typeCode = framework::Encoder;
    status.info.alarmInputs = status.info.alarmOutputs = 2;
    for (int number = 1; number <= channels; ++number)
        status.channels.push_back({number, QXNET_CHANNEL_ONLINE, "Camera " + std::to_string(number)});
    core->Resources().Hear(status);
    return guid;
}
