#include "lpc/Commands.h"

namespace lpctool {

namespace {

constexpr const char* kToolHelp = R"(vantor-lpc drives the video component over the local channel (LPC).

  vantor-lpc host     be the framework, without a window: start the component, play a script
  vantor-lpc call     send one request to a running framework and print the answer
  vantor-lpc notify   send one notification
  vantor-lpc watch    print the messages that pass a running host

vantor-lpc COMMAND --help tells more. Exit codes: 0 success, 1 failure or mismatch, 2 wrong command
line or script. Programs of one user meet only when VANTOR_USER_DATA is the same for them.
)";

constexpr const char* kHostHelp =
    R"(vantor-lpc host [--spawn PROGRAM [ARG...]] [--script FILE] [OPTION...]

Is the framework's LPC server. Starts PROGRAM, plays the script, prints each step and explains the
first mismatch; then asks the component to end, and kills it when it does not within 10 seconds.
Without a script it serves until interrupted.

  --script FILE      the script; "-" reads standard input
  --spawn PROGRAM    start this program. ARGs go to the next word with "--"; after "--spawn --" all words to
                     the end of the line belong to the command. Without ARGs it gets the usual three.
  --skin NAME        skin of the usual third argument (BlackRedSkin)
  --language NUMBER  language of the usual third argument (1)
  --output FILE      the program's output goes there
  --name NAME        listen under another name than the framework's
  --client NAME      the client of this name is the component

A script has one JSON object a line. "#" starts a comment, "## " a comment that is shown.

  {"invoke": {"protocol": "", "url": "", "method": "", "body": {}}, "reply": {}, "within_ms": 2000}
                                     send a request, demand a reply ("reply_headers": {} too)
  {"invoke": {...}, "no_reply_ms": 300}                     demand silence (0: await nothing)
  {"notify": {"method": "", "body": {}}}                    send a notification; "may_miss": true: to
                                     a component that may be gone already
  {"expect_notify": {"method": "", "body": {}}, "within_ms": N}
  {"expect_request": {"url": "", "body": {}}, "within_ms": N}   of those since the last match
  {"serve": {"url": "", "method": ""}, "answer": {}, "status": 200, "error_code": 0}
                                     answer such requests so from now on; "silent": true: not at all
  {"sleep_ms": N}   {"kill": "SIGKILL"}
  {"expect_exit": 0, "within_ms": N}                        a signal as its negative number
  {"set": {"timeout_ms": N, "end_ms": N, "accepting": true, "$name": 1}}

In what is demanded "*" matches anything, "$name" stores a value the first time and compares later,
objects may have more members, arrays may not have more elements. In what is sent "$name" is filled in.
)";

constexpr const char* kCallHelp =
    R"(vantor-lpc call --url URL [--method M] [--protocol P] [--body JSON|-] [--timeout MS]
vantor-lpc call --url URL [OPTION...] --bodies FILE|- [--quiet]

Sends a request to the running framework, which passes it on to the component that serves the URL, and
prints the answer's body. Fails when there is no answer or it reports an error. With --bodies it sends
many, one after the other over one connection, and prints the answers' bodies one a line.

  --url URL       the route
  --method M      the HTTP method, or without a URL the method
  --protocol P    "http" when a URL is given, else none
  --body JSON     the body; "-" reads standard input
  --bodies FILE   one body a line; "-" reads standard input. Lines are sent as they come
  --quiet         with --bodies: no answers, at the end one line with count, failures, seconds, and
                  median_us and p99_us of the calls
  --timeout MS    how long to wait for an answer, 1 to 3600000 (5000)
  --name NAME     the server's name, when it is not the framework's
)";

constexpr const char* kNotifyHelp =
    R"(vantor-lpc notify --url URL [--method M] [--protocol P] [--body JSON|-]

Sends a notification to the running framework. There is no answer: success means that it was sent.
The options are those of vantor-lpc call for one request.
)";

constexpr const char* kWatchHelp =
    R"(vantor-lpc watch [--count N] [--name NAME]

Asks a running vantor-lpc host for copies of the messages that pass it and prints each as a JSON object
on a line of its own, credentials masked, until interrupted, or the host ends, or N lines were printed.
)";

} // namespace

const char* HelpText(const std::string& command)
{
    if (command == "host")
        return kHostHelp;
    if (command == "call")
        return kCallHelp;
    if (command == "notify")
        return kNotifyHelp;
    return command == "watch" ? kWatchHelp : kToolHelp;
}

} // namespace lpctool
