#include "support/ApiPage.h"
#include "system/ComponentRun.h"

#include <gtest/gtest.h>

#include <regex>
#include <set>

namespace {

constexpr const char* kReady = R"({"expect_notify": {"method": "initFinish"}, "within_ms": 30000})";
constexpr const char* kEnd = R"({"expect_exit": 0, "within_ms": 15000})";

/// The page's examples as a script for vantor-lpc: what the component answers to a request must be the answer
/// that the page shows.
class PageScript
{
public:
    explicit PageScript(const ApiPage& page)
    {
        for (const ApiPage::Section& section : page.sections)
            if (section.chapter != "How to read it")
                for (const ApiPage::Example& example : section.examples)
                    Add(section, example);
        for (const ApiPage::Section& section : page.sections)
            for (const std::string& name : section.listed)
                AddReceivedOnly(section, name);
    }

    std::string Text() const { return std::string(kReady) + "\n" + m_lines + m_lastLines + kEnd + "\n"; }

    /// The urls and methods that the component says not to serve.
    const std::set<std::string>& ReceivedOnly() const { return m_receivedOnly; }

private:
    /// Values that differ from run to run: the first one met stands for all of that text.
    static std::string Varying(std::string body)
    {
        static const std::regex guid("\"([0-9a-f]{8})(-[0-9a-f]{4}){3}-[0-9a-f]{12}\"");
        static const std::regex value(
            "\"(wndId|runningSeconds|devices\\w*|channels\\w*|messages\\w+|\\w+SaveFolder)\":[^,}]+");
        body = std::regex_replace(body, guid, "\"$$g$1\"");
        return std::regex_replace(body, value, "\"$1\":\"*\"");
    }

    static std::string Message(const std::string& headers, const std::string& body)
    {
        return "{" + headers + (body.empty() ? "" : ", \"body\": " + Varying(body)) + "}";
    }

    static std::string Address(const ApiPage::Section& section, const std::string& name,
                               const std::string& method)
    {
        if (section.chapter == "Routes")
            return R"("protocol": "http", "url": ")" + name + R"(", "method": ")" +
                   (method.empty() ? "POST" : method) + '"';
        if (section.chapter == "Methods")
            return R"("method": ")" + name + '"';
        return R"("protocol": "websocket")";
    }

    void Add(const ApiPage::Section& section, const ApiPage::Example& example)
    {
        if (example.kind == "answer")
            return End(Demand(example));
        static const std::regex methodOf(R"~(\{"method":"(\w+)".*)~");
        std::smatch method;
        const bool isListed = !section.listed.empty() && std::regex_match(example.body, method, methodOf);
        const std::string name = isListed ? method[1].str() : section.name;
        const std::string message = Message(Address(section, name, example.detail), example.body);
        if (isListed)
            m_receivedOnly.insert(name);
        if (name == "componentUninit" || name == "clientDisconnected")
            m_lastLines += R"({"notify": )" + message + ", \"may_miss\": true}\n";
        else if (example.kind == "notification")
            m_lines += R"({"notify": )" + message + "}\n";
        else
            m_lines += R"({"invoke": )" + message;
        if (example.kind == "unanswered")
            End(R"(, "no_reply_ms": 200)");
    }

    static std::string Demand(const ApiPage::Example& answer)
    {
        const std::string status = answer.detail.empty() ? "" : R"("status": ")" + answer.detail + '"';
        return ", \"reply\": " + Varying(answer.body) + ", \"reply_headers\": {" + status + "}";
    }

    /// Ends the line of a request.
    void End(const std::string& demand) { m_lines += demand + "}\n"; }

    void AddReceivedOnly(const ApiPage::Section& section, const std::string& name)
    {
        if (m_receivedOnly.insert(name).second)
            m_lines += R"({"notify": )" + Message(Address(section, name, {}), {}) + "}\n";
    }

    std::string m_lines;
    std::string m_lastLines;
    std::set<std::string> m_receivedOnly;
};

TEST(TheApiPage, TellsWhatTheComponentDoes)
{
    const PageScript script{ApiPage(LPC_API_PAGE)};
    ComponentRun run;
    ASSERT_EQ(run.Play(script.Text()), 0) << run.Output() << script.Text();

    std::set<std::string> notServed;
    static const std::regex line(R"(\[(.*)\] is not served\.)");
    for (const std::string& message : run.LogMessages()) {
        std::smatch match;
        if (std::regex_match(message, match, line))
            notServed.insert(match[1]);
    }
    EXPECT_EQ(notServed, script.ReceivedOnly());
}

} // namespace
