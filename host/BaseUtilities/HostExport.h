// Marks what the host's libraries export: with declspec on Windows, with visibility elsewhere.
#pragma once

/// \def ZO_API
/// Marks what VendorInfoFileHost exports.

#if defined(_WIN32) && defined(VENDORINFOFILE_HOST_STATIC)
#define ZO_API
#elif defined(_WIN32) && defined(VENDORINFOFILE_HOST_BUILDING)
#define ZO_API __declspec(dllexport)
#elif defined(_WIN32)
#define ZO_API __declspec(dllimport)
#else
#define ZO_API __attribute__((visibility("default")))
#endif
