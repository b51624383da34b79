// Import and export of the host framework's symbols.
#pragma once

#if !defined(_WIN32)
#define KZ_API
#elif defined(KZHOST_EXPORTS)
#define KZ_API __declspec(dllexport)
#else
#define KZ_API __declspec(dllimport)
#endif
