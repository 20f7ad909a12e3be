#pragma once

/* Checks at compile time that a structure has the size under which it travels. */
#ifdef __cplusplus
#define QXNET_SIZE(structure, bytes) static_assert(sizeof(structure) == (bytes), #structure)
#else
#define QXNET_SIZE(structure, bytes) _Static_assert(sizeof(structure) == (bytes), #structure)
#endif
