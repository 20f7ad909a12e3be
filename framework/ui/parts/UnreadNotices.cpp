#include "framework/ui/parts/UnreadNotices.h"
