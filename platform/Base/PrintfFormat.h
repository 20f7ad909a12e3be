#pragma once

/// Behind a function's declaration: lets compilers that can do so check a printf format against its
/// arguments. text and first are the positions, from 1, of the format and of the first argument; a member
/// function's object counts.
#if defined(__GNUC__)
#define BASE_PRINTF_FORMAT(text, first) __attribute__((format(printf, text, first)))
#else
#define BASE_PRINTF_FORMAT(text, first)
#endif
