#include "component/framework/CoreWorld.h"

#include <future>

using framework::AskOutcome;
using testing::ElementsAre;

namespace {

using Answer = framework::Asked<protocol::LocalFileQueryResult>;

/// A core whose component is a client in this process, and is asked for its files.
class Questions : public CoreTest
{
protected:
    Questions() { StartCore(); }

    std::future<Answer> Ask()
    {
        protocol::LocalFileQuery query;
        query.type = protocol::LocalFileType::Video;
        query.contition = protocol::LocalFileCondition::Group;
        query.guid = "g";
        query.timeBegin.count = 1;
        query.timeEnd.count = 2;
        const auto promise = std::make_shared<std::promise<Answer>>();
        core->QueryLocalFiles(query, [promise](const Answer& answer) { promise->set_value(answer); });
        return promise->get_future();
    }

    static Answer Taken(std::future<Answer> answer)
    {
        constexpr std::chrono::seconds kLimit{30};
        EXPECT_EQ(answer.wait_for(kLimit), std::future_status::ready);
        return answer.get();
    }
};

TEST_F(Questions, EndInWhatTheComponentAnswered)
{
    struct Row
    {
        const char* status;
        const char* error;
        const char* body;
        AskOutcome outcome;
    };
    const char* const file =
        R"({"localFileQueryResult":[{"type":1,"fileGuid":"f","cameraGuid":"c","timeOccur":7}]})";
    const Row rows[] = {
        {"200", "0", file, AskOutcome::Answered},
        {"", "", file, AskOutcome::Answered},
        {"413", "", file, AskOutcome::Refused},
        {"200", "5", file, AskOutcome::Refused},
        {"200", "", "", AskOutcome::Unreadable},
        {"200", "", "no JSON", AskOutcome::Unreadable},
        {"200", "", R"({"localFileQueryResult":[{"type":1}]})", AskOutcome::Unreadable},
    };
    const Row* row = nullptr;
    TestClient component(lpc::kVideoComponentName);
    component.onRequest = [&](const lpc::CallBackData& call) {
        EXPECT_EQ(call.Header("url"), "/vantor/v1/internal/video/localFileQuery");
        EXPECT_EQ(call.body,
                  R"({"localFileQuery":{"type":1,"contition":1,"guid":"g","timeBegin":1,"timeEnd":2}})");
        lpc::HeaderMap headers;
        if (*row->status)
            headers[lpc::kStatusHeader] = row->status;
        if (*row->error)
            headers[lpc::kErrorCodeHeader] = row->error;
        EXPECT_TRUE(lpcclient::Reply({call.requestId, headers, row->body}));
    };
    component.BecomeReady();
    for (const Row& each : rows) {
        SCOPED_TRACE(std::string(each.status) + " " + each.error + " " + each.body);
        row = &each;
        const Answer answer = Taken(Ask());
        EXPECT_EQ(answer.outcome, each.outcome);
        EXPECT_EQ(answer.value.files.size(), each.outcome == AskOutcome::Answered ? 1u : 0u);
    }
}

TEST_F(Questions, EndAlsoWithoutAnAnswer)
{
    EXPECT_EQ(Taken(Ask()).outcome, AskOutcome::NotThere) << "nobody has joined";
    std::future<Answer> lost;
    {
        TestClient component(lpc::kVideoComponentName);
        component.BecomeReady();
        lost = Ask();
        EXPECT_TRUE(component.received.Take("http ")) << "one that has not come yet would be refused";
    }
    EXPECT_EQ(Taken(std::move(lost)).outcome, AskOutcome::NotThere) << "it left";
    core->Stop();
    EXPECT_EQ(Taken(Ask()).outcome, AskOutcome::NotThere) << "the core has ended";

    answerLimit = std::chrono::milliseconds(50);
    StartCore();
    TestClient silent(lpc::kVideoComponentName);
    silent.BecomeReady();
    EXPECT_EQ(Taken(Ask()).outcome, AskOutcome::NoAnswer);
}

} // namespace
