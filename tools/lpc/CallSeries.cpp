#include "lpc/CallSeries.h"

#include "LPC_Client/LPC_Client.h"
#include "lpc/Commands.h"
#include "lpc/Errors.h"
#include "lpc/json/Json.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdlib>
#include <istream>
#include <ostream>
#include <string>

namespace lpctool {

namespace {

using Clock = std::chrono::steady_clock;

long NumberHeader(const lpc::Message& message, const char* name, long otherwise)
{
    const auto found = message.headers.find(name);
    return found == message.headers.end() ? otherwise : std::strtol(found->second.c_str(), nullptr, 10);
}

/// parts: in which the unit is divided.
double Rounded(double value, double parts)
{
    return std::round(value * parts) / parts;
}

} // namespace

std::string ComplaintAbout(const lpc::Message& answer)
{
    const long status = NumberHeader(answer, lpc::kStatusHeader, 200);
    const long error = NumberHeader(answer, lpc::kErrorCodeHeader, 0);
    if (status >= 200 && status < 300 && error == 0)
        return {};
    return "the answer reports status " + std::to_string(status) +
           (error != 0 ? " and error " + std::to_string(error) : "");
}

int CCallSeries::Run(std::istream& bodies)
{
    const auto start = Clock::now();
    bool goesOn = true;
    std::string body;
    std::string fault;
    for (std::uint64_t line = 1; goesOn && std::getline(bodies, body); ++line) {
        if (body.empty())
            continue;
        if (!ParseJson(body, &fault)) {
            m_err << "vantor-lpc call: --bodies, line " << line << " is " << fault << '\n';
            return kWrongUse;
        }
        goesOn = Call(body);
    }
    if (m_show == Show::Summary)
        ShowSummary(std::chrono::duration<double>(Clock::now() - start).count());
    return m_failures == 0 ? kGood : kFailed;
}

bool CCallSeries::Call(const std::string& body)
{
    m_request.body = body;
    lpc::Message answer;
    lpc::RequestId id = 0;
    const auto start = Clock::now();
    const bool answered = lpcclient::SendEx(answer, m_request, id, m_timeoutMs);
    const int error = answered ? lpc::kNoError : lpcclient::GetLPCLastError();
    if (m_show == Show::Summary)
        m_times.push_back(std::chrono::duration<float, std::micro>(Clock::now() - start).count());
    ++m_count;
    if (answered && m_show == Show::Answers)
        ShowAnswer(answer);
    CountFailure(answered ? ComplaintAbout(answer) : "no answer: " + ErrorText(error));
    return error != lpc::kConnectionLost;
}

void CCallSeries::CountFailure(const std::string& complaint)
{
    if (complaint.empty())
        return;
    if (m_show == Show::Answers || m_failures == 0)
        m_err << "vantor-lpc: " << complaint << '\n';
    ++m_failures;
}

void CCallSeries::ShowAnswer(const lpc::Message& answer)
{
    if (!answer.body.empty())
        m_out << ToText(*BodyValue(answer.body));
    m_out << std::endl;
}

void CCallSeries::ShowSummary(double seconds)
{
    cJSON* const summary = cJSON_CreateObject();
    const JsonValue owner = OwnJson(summary);
    cJSON_AddNumberToObject(summary, "count", static_cast<double>(m_count));
    cJSON_AddNumberToObject(summary, "failures", static_cast<double>(m_failures));
    cJSON_AddNumberToObject(summary, "seconds", Rounded(seconds, 1000));
    cJSON_AddNumberToObject(summary, "median_us", Rounded(Quantile(0.5), 1));
    cJSON_AddNumberToObject(summary, "p99_us", Rounded(Quantile(0.99), 1));
    m_out << ToText(*owner) << '\n';
}

double CCallSeries::Quantile(double part)
{
    if (m_times.empty())
        return 0;
    const auto at =
        m_times.begin() + static_cast<std::ptrdiff_t>(part * static_cast<double>(m_times.size() - 1));
    std::nth_element(m_times.begin(), at, m_times.end());
    return *at;
}

} // namespace lpctool
