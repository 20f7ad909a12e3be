#include "device/Commands.h"

namespace devicetool {

const char kHelp[] =
    R"(vantor-device: tries a camera, recorder or storage server from the shell.

vantor-device [OPTIONS] USER@HOST:PORT COMMAND

  info                        what the device tells of itself
  channels                    its channels with state and name
  abilities [KIND]            ability documents of --channel N (1; 0: the device); KIND is input, basic,
                              record, picture or detection, all without it
  get PARAMETER|NUMBER        a parameter, by its name or command number; --channel N (1)
  set PARAMETER MEMBER=VALUE...
                              reads it, changes the members and writes it back; --channel N (1)
  set PARAMETER --from FILE   writes it whole from JSON; "-" reads standard input
  batch PARAMETER --channels 1-4,7 [MEMBER=VALUE...]
                              reads or changes it for many channels
  outputs [on|off NUMBER]     the alarm outputs; switches one
  time [now|TEXT]             the clock; sets it to this computer's time, or to "2026-03-01 12:00:00"

vantor-device commands        all parameters with their command numbers
vantor-device --structures    the tables of docs/device-structures.md

  --tls                 with TLS; the certificate that the device shows first is kept
  --trust-file FILE     where it is kept (trusted-devices in the user's data)
  --json                results and errors as JSON, one line each
  --timeout MS          of connecting and of each exchange, 100 to 600000
  --password-file FILE  its first line is the password ("-": standard input); otherwise that is
                        VANTOR_DEVICE_PASSWORD, or is asked for

MEMBER is a path such as week.days[0-4].allDay. Exit codes: 0, 1 failed, 2 wrong use.
)";

} // namespace devicetool
