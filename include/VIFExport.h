// Marks what the library exports: with declspec on Windows, with visibility elsewhere.
#pragma once

/// \def VIF_API
/// Marks what VendorInfoFile exports.

#if defined(_WIN32) && defined(VENDORINFOFILE_STATIC)
#define VIF_API
#elif defined(_WIN32) && defined(VENDORINFOFILE_BUILDING)
#define VIF_API __declspec(dllexport)
#elif defined(_WIN32)
#define VIF_API __declspec(dllimport)
#else
#define VIF_API __attribute__((visibility("default")))
#endif
