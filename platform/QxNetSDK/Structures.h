#pragma once

/*
 * The structures of the device network SDK, and the commands under which they travel.
 *
 * They are plain octets: every member has a fixed size, stands at a multiple of its size and is
 * little-endian; what is left over are reserved bytes, which are zero. A structure's first member is its own
 * size in bytes. Each family has a file of its own. The order of members never changes; a new member takes
 * reserved bytes.
 */

#include "QxNetSDK/Structures/Alarms.h"
#include "QxNetSDK/Structures/AuxAlarms.h"
#include "QxNetSDK/Structures/Camera.h"
#include "QxNetSDK/Structures/Capture.h"
#include "QxNetSDK/Structures/Commands.h"
#include "QxNetSDK/Structures/Conditions.h"
#include "QxNetSDK/Structures/Detections.h"
#include "QxNetSDK/Structures/Device.h"
#include "QxNetSDK/Structures/Layout.h"
#include "QxNetSDK/Structures/Maintenance.h"
#include "QxNetSDK/Structures/Motion.h"
#include "QxNetSDK/Structures/Network.h"
#include "QxNetSDK/Structures/Recording.h"
#include "QxNetSDK/Structures/Schedule.h"
#include "QxNetSDK/Structures/Storage.h"
