// Measures the catalogue of local files and the settings beside the same statements, with the same commits,
// on the engine's bare C interface: same library, schema and settings, call by call in turn.

#include "store/Groups.h"

#include "Base/Encrypt.h"

#include <cstring>

/// --quick makes a tenth of the calls, and no table of a million rows.
int main(int argc, char** argv)
{
    const bool quick = argc > 1 && std::strcmp(argv[1], "--quick") == 0;
    for (const bench::Kind& kind :
         {bench::Kind{"plain", ""}, bench::Kind{"keyed", Base::Encrypt::RandomKeyText()}}) {
        bench::MeasureAdds(kind, quick);
        bench::MeasureSettings(kind, quick);
        bench::MeasureLookups(kind, quick);
    }
    return 0;
}
