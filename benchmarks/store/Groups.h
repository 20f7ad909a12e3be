#pragma once

#include "store/Catalogue.h"

/// What the program measures; each takes whether fewer rounds will do.
namespace bench {

/// Adding a picture, and a clip of a new and of a known path.
void MeasureAdds(const Kind& kind, bool quick);

/// Lookups by identifier and path, and ranges of about 100 rows, in tables of three sizes (quick: two) with
/// few and with many cameras.
void MeasureLookups(const Kind& kind, bool quick);

/// Saving settings of which one changed, and of which none did.
void MeasureSettings(const Kind& kind, bool quick);

} // namespace bench
