#pragma once

// SSE2 is part of every x86-64 target (and of the Windows builds); other
// targets take the plain loops beside each use.
#if defined(__SSE2__) || defined(_M_X64)
#include <emmintrin.h>
#define HUEBASE_SSE2 1
#else
#define HUEBASE_SSE2 0
#endif
