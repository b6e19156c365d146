#pragma once

#include <string_view>

// What this build calls itself.
namespace morvane {
inline constexpr std::string_view BUILDDATE = "2026/04/08";

#ifdef NDEBUG
inline constexpr std::string_view BUILDWORDS = " - Version ";
#else
inline constexpr std::string_view BUILDWORDS = " - Debug version ";
#endif

#if defined(__linux__)
inline constexpr std::string_view BUILDSYSTEM = "Linux";
#elif defined(__APPLE__)
inline constexpr std::string_view BUILDSYSTEM = "Darwin";
#else
inline constexpr std::string_view BUILDSYSTEM = "Unix";
#endif

#if defined(__x86_64__)
inline constexpr std::string_view BUILDPROCESSOR = "x86_64";
#elif defined(__aarch64__)
inline constexpr std::string_view BUILDPROCESSOR = "aarch64";
#elif defined(__powerpc64__)
inline constexpr std::string_view BUILDPROCESSOR = "ppc64";
#else
inline constexpr std::string_view BUILDPROCESSOR = "unknown";
#endif
} // namespace morvane
