#include "image2d/format/library_search.hpp"

#include <cstdlib>
#include <cstring>

namespace morvane {
namespace {
constexpr std::size_t LONGEST_WORDS = 400;
constexpr NAT FREE_BYTES = NAT{256} << 20;
// Above what a deflate stream of equal bytes reaches (1032) and most image codecs with it.
constexpr NAT HIGHEST_RATIO = 4096;
} // namespace

std::string SEARCH_LIBRARY(SHARED_LIBRARY &library, const char *variable,
                           const std::vector<std::string> &names) {
    if (const char *only = std::getenv(variable)) return library.OPEN(only) ? only : "";
    for (const std::string &name : names)
        if (library.OPEN(name)) return name;
    return {};
}

std::string LIBRARY_WORDS(const char *text) {
    std::string words(text ? text : "", text ? ::strnlen(text, LONGEST_WORDS) : 0);
    while (!words.empty() && static_cast<unsigned char>(words.back()) <= ' ')
        words.pop_back();
    for (char &c : words)
        if (static_cast<unsigned char>(c) < ' ' || c == '\x7f') c = ' ';
    return words;
}

bool IS_LIKELY_SIZE(NAT pictureBytes, NAT fileBytes) {
    return pictureBytes <= FREE_BYTES || pictureBytes / HIGHEST_RATIO <= fileBytes;
}
} // namespace morvane
