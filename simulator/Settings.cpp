#include "simulator/Settings.h"

#include "Base/FileUtil.h"
#include "Base/StringUtil.h"
#include "CommandLine/Options.h"
#include "QxNetSDK/Structures.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace simulator {

namespace {

using CommandLine::COptions;
using CommandLine::OptionSpec;
using Kind = OptionSpec::Kind;

constexpr long kMostDevices = 256;
constexpr std::size_t kMostCameras = 512; ///< of a device

const std::vector<OptionSpec> kOptions = {
    {"--devices", Kind::Value},      {"--channels", Kind::Value},
    {"--port", Kind::Value},         {"--listen", Kind::Value},
    {"--state", Kind::Value},        {"--faults", Kind::Value},
    {"--tls", Kind::Flag},           {"--new-certificate", Kind::Flag},
    {"--user", Kind::Value},         {"--password-file", Kind::Value},
    {"--first-kind", Kind::Value},   {"--type-code", Kind::Value},
    {"--voice", Kind::Value},        {"--with-parent", Kind::Flag},
    {"--sessions", Kind::Value},     {"--session-seconds", Kind::Value},
    {"--lock-seconds", Kind::Value}, {"--reboot-seconds", Kind::Value},
    {"--help", Kind::Flag},
};

/// A number option into any whole-number member.
template<class Number>
bool Read(const COptions& options, const char* name, long lowest, long highest, Number& value,
          std::string& error)
{
    long number = 0;
    if (!options.Number(name, lowest, highest, static_cast<long>(value), number, error))
        return false;
    value = static_cast<Number>(number);
    return true;
}

bool ReadSeconds(const COptions& options, const char* name, std::chrono::milliseconds& time,
                 std::string& error)
{
    long seconds = static_cast<long>(time.count() / 1000);
    const bool isGood = Read(options, name, 1, 3600, seconds, error);
    time = std::chrono::seconds(seconds);
    return isGood;
}

bool ReadNumbers(const COptions& options, Settings& settings, std::string& error)
{
    std::chrono::milliseconds session = settings.door.sessionTime;
    std::chrono::milliseconds lock = settings.door.lockTime;
    const bool isGood = Read(options, "--devices", 1, kMostDevices, settings.devices, error) &&
                        Read(options, "--channels", 0, 100000, settings.cameras, error) &&
                        Read(options, "--sessions", 1, 100000, settings.door.sessions, error) &&
                        ReadSeconds(options, "--session-seconds", session, error) &&
                        ReadSeconds(options, "--lock-seconds", lock, error) &&
                        ReadSeconds(options, "--reboot-seconds", settings.rebootTime, error);
    settings.door.sessionTime = std::chrono::duration_cast<std::chrono::seconds>(session);
    settings.door.lockTime = std::chrono::duration_cast<std::chrono::seconds>(lock);
    return isGood;
}

/// "4000" or "4000,4100": the devices that are not named follow the last one that is.
bool ReadPorts(const COptions& options, Settings& settings, std::string& error)
{
    if (!options.Has("--port"))
        return true;
    unsigned long highest = 0;
    for (const std::string& entry : Base::StringUtil::Split(options.Value("--port"), ',')) {
        char* end = nullptr;
        const unsigned long port = std::strtoul(entry.c_str(), &end, 10);
        if (*end != '\0' || port < 1 || port > 65535)
            error = "--port wants ports from 1 to 65535, with commas between devices";
        settings.ports.push_back(static_cast<std::uint16_t>(port));
        highest = port + settings.devices - std::min<std::size_t>(settings.ports.size(), settings.devices);
    }
    if (error.empty() && highest > 65535)
        error = "--port leaves no port for the last device";
    return error.empty();
}

bool ReadKind(const COptions& options, Settings& settings, std::string& error)
{
    const std::string kind = options.Value("--first-kind", "encoder");
    settings.firstKind = kind == "recorder" ? QXNET_DEVICE_RECORDER : QXNET_DEVICE_ENCODER;
    if (kind != "recorder" && kind != "encoder")
        error = "--first-kind is encoder or recorder";
    return error.empty();
}

/// "102,15/6,,107": by device; an empty entry leaves a device its kind.
bool ReadTypes(const COptions& options, Settings& settings, std::string& error)
{
    if (!options.Has("--type-code"))
        return true;
    for (const std::string& entry : Base::StringUtil::Split(options.Value("--type-code"), ',')) {
        TypeCode type;
        int end = 0;
        const int read = std::sscanf(entry.c_str(), "%9u%n/%9u%n", &type.code, &end, &type.subType, &end);
        const bool hasSign = entry.find_first_not_of("0123456789/") != std::string::npos;
        if (!entry.empty() && (hasSign || read < 1 || static_cast<std::size_t>(end) != entry.size())) {
            error = "--type-code wants CODE or CODE/SUBTYPE, with commas between devices";
            return false;
        }
        settings.types.push_back(entry.empty() ? std::nullopt : std::optional<TypeCode>(type));
    }
    return true;
}

bool ReadVoice(const COptions& options, Settings& settings, std::string& error)
{
    if (!options.Has("--voice"))
        return true;
    const std::string text = options.Value("--voice");
    VoicePlan voice;
    int end = 0;
    const int read = std::sscanf(text.c_str(), "%3u/%3u%n", &voice.encoding, &voice.rate, &end);
    if (read != 2 || static_cast<std::size_t>(end) != text.size() || voice.encoding > 255 || voice.rate > 255)
        error = "--voice wants ENCODING/THOUSANDS, such as 1/8";
    settings.voice = voice;
    return error.empty();
}

bool ReadUser(const COptions& options, Settings& settings, std::string& error)
{
    std::string& user = settings.door.user;
    user = options.Value("--user", user);
    if (user.empty() || user.size() >= QXNET_LABEL_LENGTH)
        error = "--user must have 1 to 63 bytes";
    return error.empty();
}

bool ReadPassword(const COptions& options, Settings& settings, std::string& error)
{
    if (!options.Has("--password-file"))
        return true;
    std::string& password = settings.door.password;
    if (!Base::FileUtil::ReadFile(options.Value("--password-file"), password, 1024)) {
        error = "the password file cannot be read";
        return false;
    }
    while (!password.empty() && (password.back() == '\n' || password.back() == '\r'))
        password.pop_back();
    return true;
}

void ReadPlaces(const COptions& options, Settings& settings)
{
    settings.listen = options.Value("--listen", settings.listen);
    settings.faults = options.Value("--faults");
    settings.state = options.Value("--state");
    if (!settings.state.empty() && settings.state.back() != '/')
        settings.state += '/';
    settings.useTls = options.Has("--tls") || options.Has("--new-certificate");
    settings.wantsNewCertificate = options.Has("--new-certificate");
    settings.endsWithParent = options.Has("--with-parent");
}

bool HasRoomForCameras(const Settings& settings, std::string& error)
{
    for (const DevicePlan& device :
         PlanDevices(settings.devices, settings.cameras, settings.firstKind, settings.types))
        if (device.channels.size() > kMostCameras)
            error =
                "--channels gives a device more than " + std::to_string(kMostCameras) + "; take more devices";
    return error.empty();
}

} // namespace

std::uint16_t PortOf(const Settings& settings, unsigned device)
{
    if (settings.ports.empty())
        return 0;
    const std::size_t named = std::min<std::size_t>(device, settings.ports.size() - 1);
    return static_cast<std::uint16_t>(settings.ports[named] + (device - named));
}

std::optional<Settings> ReadSettings(const std::vector<std::string>& arguments, std::string& error)
{
    const auto options = COptions::Parse(arguments, kOptions, error);
    if (!options)
        return std::nullopt;
    Settings settings;
    settings.wantsHelp = options->Has("--help");
    if (settings.wantsHelp)
        return settings;
    ReadPlaces(*options, settings);
    if (!ReadNumbers(*options, settings, error) || !ReadPorts(*options, settings, error) ||
        !ReadKind(*options, settings, error) || !ReadTypes(*options, settings, error) ||
        !ReadVoice(*options, settings, error) || !ReadUser(*options, settings, error) ||
        !ReadPassword(*options, settings, error) || !HasRoomForCameras(settings, error))
        return std::nullopt;
    return settings;
}

const char* HelpText()
{
    return R"(vantor-device-sim plays cameras, recorders and a storage server over the device protocol.

    vantor-device-sim [--devices N] [--channels M] [--port P] [--listen ADDRESS] [--state DIR] [...]

When ready it prints one line of JSON with user, devices and ports. It runs until SIGTERM or SIGINT.

  --devices N           1 to 256 devices (1): encoders and recorders in turn, the last of two or more a
                        storage server
  --channels M          cameras in all (4); a recorder gets three times an encoder's share, and what is left
  --first-kind KIND     encoder (usual) or recorder
  --type-code LIST      type codes of the devices in order: "102,15/6,,107" (code/sub-type; empty: as usual)
  --voice ENCODING/RATE how every device takes voice, such as 1/8: G.711 A-law, 8000 samples a second
  --port P              ports P, P+1, ...; "P,Q,..." for each device; without it free ports
  --listen ADDRESS      IP address to listen on (127.0.0.1)
  --state DIR           keep everything that is set there; without it nothing outlives the program
  --faults FILE         faults on demand, see docs/device-sim.md; read again whenever it changes
  --tls                 TLS with a certificate of its own, kept in the state folder
  --new-certificate     the same with a fresh certificate
  --user U              user name (admin)
  --password-file F     file with the password (vantor-device)
  --sessions N          sessions a device has at once (1024)
  --session-seconds N   after which an unused session ends (60)
  --lock-seconds N      for which five wrong passwords lock a device (30)
  --reboot-seconds N    for which a device is away when it restarts (3)
  --with-parent         end when the process that started it ends
  --help                this text

Exit codes: 0 ended as asked, 1 it cannot run (port, faults file, state folder), 2 wrong arguments.
)";
}

} // namespace simulator
