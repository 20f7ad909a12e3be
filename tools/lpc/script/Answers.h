#pragma once

#include "LPC_Forward/Answer.h"
#include "LPC_Wire/Records.h"
#include "lpc/json/Json.h"

#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace lpctool {

using lpcforward::kJsonContentType;
using lpcforward::MakeAnswer;
using lpcforward::UrlMatches;

/// What the host answers to requests of the component: first what a script served, the latest first, then
/// defaults for every route that a framework serves. Any thread.
class CAnswers
{
public:
    struct Answer
    {
        bool silent = false;
        lpc::Message message;
    };

    /// Answers requests with that url (with an empty url: with that method) this way from now on. A segment
    /// "*" of the url stands for any one segment. An empty method means every method.
    void Serve(const std::string& url, const std::string& method, Answer answer);

    /// Status 404 for what nobody serves.
    Answer Find(const lpc::CallBackData& request) const;

private:
    struct Served
    {
        std::string url;
        std::string method;
        Answer answer;
    };

    mutable std::mutex m_mutex;
    std::vector<Served> m_served;
};

} // namespace lpctool
