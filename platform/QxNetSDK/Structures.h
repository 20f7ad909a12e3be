#pragma once

/*
 * The structures of the device network SDK, and the commands under which they travel.
 *
 * They are plain octets: every member has a fixed size, stands at a multiple of its size and is
 * little-endian; what is left over are reserved bytes, which are zero. A structure's first member is its own
 * size in bytes. Each family has a file of its own. The order of members never changes; a new member takes
 * reserved bytes.
 */

#include "QxNetSDK/Structures/Device.h"
