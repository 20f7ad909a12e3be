#pragma once

#include "simulator/server/Http.h"

#include <functional>
#include <mutex>

namespace simulator {

/// What may go wrong on demand; docs/device-sim.md tells each one.
enum class FaultKind {
    Refuse,
    Error,
    Delay,
    Cut,
    Truncate,
    Oversize,
    Drip,
    Silent,
    Headers,
    Length,
    Version,
    NoKeepAlive,
    Garbage
};

/// One rule of the faults file.
struct FaultRule
{
    FaultKind kind = FaultKind::Error;
    std::optional<unsigned> device;  ///< index from 0; none: every device
    std::optional<unsigned> channel; ///< none: every one
    std::string path;                ///< the first segments behind ".../v1/"; empty: every one
    std::string method;              ///< empty: every one
    std::optional<unsigned> times;   ///< how often it still happens; none: always
    unsigned status = 500;           ///< of "error", as the three that follow
    unsigned error = 504;
    unsigned module = 0;
    std::optional<unsigned> own;
    unsigned long long amount = 0; ///< milliseconds, octets, headers or version, as the kind wants it
};

/// A channel's name or state that the faults file sets.
struct ChannelSetting
{
    unsigned device = 0;
    unsigned channel = 1;
    std::optional<std::string> name;
    std::optional<unsigned> state;
};

/// All that a faults file says.
struct FaultsFile
{
    std::vector<FaultRule> rules;
    std::vector<ChannelSetting> channels;
};

/// Reads the text of a faults file; none, with the reason in error, when something in it is not known.
std::optional<FaultsFile> ParseFaults(const std::string& text, std::string& error);

/// What a request is to a rule.
struct FaultSubject
{
    unsigned device = 0;
    std::string method;
    std::string path; ///< behind ".../v1/"
    std::optional<unsigned> channel;
};

/// The rules of a file, read again whenever it changes. Any thread.
class CFaultBook
{
public:
    using ChannelSetter = std::function<void(const ChannelSetting&)>;

    /// Without a path there are never faults.
    CFaultBook(std::string path, ChannelSetter setChannel);

    /// Reads the file if it is new; to be called before each request. False with one line in error when it
    /// cannot be used: the rules stay as they were.
    [[nodiscard]] bool Refresh(std::string& error);

    /// The first rule that means the request; it is counted as having happened.
    std::optional<FaultRule> Take(const FaultSubject& subject);
    /// The first "refuse" that means every request of a device, for a connection that was just made.
    std::optional<FaultRule> TakeForConnection(unsigned device);

private:
    struct Stamp
    {
        long long time = 0;
        unsigned long long size = 0;
        bool operator!=(const Stamp& other) const { return time != other.time || size != other.size; }
    };

    std::optional<Stamp> ReadStamp() const;
    std::optional<FaultRule> TakeFirst(const std::function<bool(const FaultRule&)>& means);

    const std::string m_path;
    const ChannelSetter m_setChannel;
    std::mutex m_mutex;
    std::optional<Stamp> m_stamp;
    std::vector<FaultRule> m_rules;
};

/// Changes an answer as the rule says. Not for "error" and "refuse", which stand in an answer's place.
void Spoil(const FaultRule& rule, HttpAnswer& answer);

} // namespace simulator
