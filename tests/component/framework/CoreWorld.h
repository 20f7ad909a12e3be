#pragma once

#include "LPC_Client/LPC_Client.h"
#include "LPC_Wire/WellKnownNames.h"
#include "framework/core/FrameworkCore.h"

#include "support/CapturedLog.h"
#include "support/TestDataRoot.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <condition_variable>
#include <functional>
#include <mutex>
#include <string>
#include <vector>

/// Texts that threads add and a test waits for.
class Texts
{
public:
    void Add(const std::string& text);
    /// Whether a text that begins so comes within the time; it and all before it are taken.
    bool Take(const std::string& beginning);
    /// All that came, taken or not.
    std::vector<std::string> All() const;
    std::size_t CountOf(const std::string& beginning) const;

private:
    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    std::vector<std::string> m_texts;
    std::ptrdiff_t m_taken = 0;
};

/// What the core tells, as texts: "state ready: detail", "resources", "users", "notice text",
/// "operation user: text", "resize MainView 800x600".
class Events : public framework::IFrameworkEvents
{
public:
    void OnComponentState(framework::ComponentState state, const std::string& detail) override;
    void OnResourcesChanged() override { texts.Add("resources"); }
    void OnUsersChanged() override { texts.Add("users"); }
    void OnNotice(const framework::JournalEntry& entry) override;
    void OnOperation(const framework::JournalEntry& entry) override;
    void OnFrameResize(const std::string& window, int width, int height) override;

    Texts texts;
};

/// A client of the channel in this process; one at a time. What it receives are texts: "method body" or
/// "websocket body".
class TestClient
{
public:
    explicit TestClient(const std::string& name);
    ~TestClient();
    TestClient(const TestClient&) = delete;
    TestClient& operator=(const TestClient&) = delete;

    struct Answer
    {
        std::string status;
        std::string body;
    };
    Answer Request(const std::string& method, const std::string& url, const std::string& body = {});
    void Notify(const std::string& method);
    /// Registers as a component does and announces that it is ready.
    void BecomeReady();

    /// Called for each request of the framework.
    std::function<void(const lpc::CallBackData&)> onRequest;
    Texts received;
};

/// A framework in a fresh data root.
class CoreTest : public testing::Test
{
protected:
    CoreTest();

    /// Starts a core, ending the earlier one. program: see FrameworkOptions. It connects to no device unless
    /// connectDevices says so.
    void StartCore(const std::string& program = {});
    /// Lets no change of the file be written.
    void Block(const std::string& name);
    /// A device that is online, with so many channels "Camera 1" and so on, two inputs and two outputs.
    std::string AddDevice(const std::string& name, int port = 8000, int channels = 2);
    std::string Folder() const { return root.Path() + "Framework.C/"; }

    TestDataRoot root;
    Events events;
    std::chrono::milliseconds endLimit{5000};     ///< of the components of cores that are started
    std::chrono::milliseconds answerLimit{10000}; ///< of the routes of components
    bool connectDevices = false;
    std::unique_ptr<framework::CFrameworkCore> core;
};

constexpr const char* kUserName = "clear-user-name";
constexpr const char* kPassword = "clear-pass-word";
