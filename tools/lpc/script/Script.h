#pragma once

#include "LPC_Wire/Records.h"
#include "lpc/json/Json.h"

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace lpctool {

/// A "## text" line, shown while the script plays.
struct Heading
{
    std::string text;
};

/// Sends a request. A reply is demanded (body and, optionally, headers as patterns) or silence for silenceMs.
struct Invoke
{
    lpc::HeaderMap headers;
    JsonValue body;
    JsonValue reply;
    JsonValue replyHeaders;
    std::optional<std::uint32_t> silenceMs;
    std::optional<std::uint32_t> withinMs;
};

/// Sends a notification.
struct SendNotify
{
    lpc::HeaderMap headers;
    JsonValue body;
    bool mayMiss = false; ///< it does not matter whether the component is still there
};

/// Demands a notification or request of the component: the headers as members of the pattern, the body as
/// "body".
struct ExpectMessage
{
    bool request = false;
    JsonValue pattern;
    std::optional<std::uint32_t> withinMs;
};

/// Sets what the host answers to requests with that url (method when the url is empty) from then on.
struct Serve
{
    std::string url;
    std::string method;
    JsonValue answer;
    int status = 200;
    int errorCode = 0;
    bool silent = false;
};

struct Sleep
{
    std::uint32_t ms = 0;
};

struct KillChild
{
    int signal = 0;
};

/// Demands that the started program ends with this status; a signal as its negative number.
struct ExpectExit
{
    int status = 0;
    std::optional<std::uint32_t> withinMs;
};

/// Sets variables and options.
struct SetOptions
{
    std::vector<std::pair<std::string, JsonValue>> variables;
    std::optional<std::uint32_t> timeoutMs; ///< from then on the default of every within_ms
    std::optional<std::uint32_t> endMs;     ///< how long the component may take to end after the script
    std::optional<bool> accepting;          ///< false: the host refuses requests with "try again"
};

using Step =
    std::variant<Heading, Invoke, SendNotify, ExpectMessage, Serve, Sleep, KillChild, ExpectExit, SetOptions>;

struct ScriptLine
{
    int number = 0; ///< in the file, from 1
    Step step;
};

struct Script
{
    std::string file;
    std::vector<ScriptLine> lines;
};

/// Reads a script: one JSON object a line, blank lines and lines that start with "#" left out. None, with
/// "file:line: reason" in error, at the first fault.
std::optional<Script> ParseScript(const std::string& file, const std::string& text, std::string& error);

/// What the step does, in a few words: "invoke getWndHandle: a reply".
std::string Describe(const Step& step);

/// True for steps that need a program started by the host.
bool NeedsChild(const Step& step);

} // namespace lpctool
