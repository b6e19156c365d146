#include "geometry/format/line_text.hpp"

#include "foundation/base/number_text.hpp"
#include "foundation/console/paths.hpp"
#include "geometry/model/cloud.hpp"
#include "script/file/file_list.hpp"
#include "script/file/file_text.hpp"
#include "script/file/name_mask.hpp"

#include <algorithm>

namespace morvane {
namespace {
std::string_view TRIMMED_FRONT(std::string_view text) {
    const std::size_t first = text.find_first_not_of(" \t");
    return first == std::string_view::npos ? std::string_view() : text.substr(first);
}

// Position behind a keyword in small letters, found without regard to case; npos: not there.
std::size_t BEHIND(std::string_view text, std::string_view keyword) {
    const auto found =
        std::search(text.begin(), text.end(), keyword.begin(), keyword.end(),
                    [](char a, char b) { return (a >= 'A' && a <= 'Z' ? a - 'A' + 'a' : a) == b; });
    if (found == text.end()) return std::string_view::npos;
    return static_cast<std::size_t>(found - text.begin()) + keyword.size();
}

UTF16 OBJECT_NAME(std::string_view rest, const UTF16 &fileName) {
    std::string name(rest);
    std::replace(name.begin(), name.end(), '\t', ' ');
    name.erase(0, name.find_first_not_of(' '));
    name.erase(name.find_last_not_of(' ') + 1);
    if (name.empty()) return UTF16("child-") + GETFILE(fileName);
    return GETUTF16(name);
}

// The state of a text being read.
class LINE_TEXT_READER {
public:
    LINE_TEXT_READER(TCLOUD &target, const UTF16 &name, const LINE_SHARE *lineShare)
        : cloud(target), fileName(name), share(lineShare) {
        DRAW();
    }
    void READ(std::string_view raw) {
        const std::string_view line = TRIMMED_FRONT(raw);
        if (line.empty()) return CLOSE(material);
        if (const std::size_t at = BEHIND(line, "object:"); at != std::string_view::npos) {
            CLOSE(material);
            lastClosed = 0;
            return cloud.NEWOBJECT(OBJECT_NAME(line.substr(at), fileName));
        }
        if (const std::size_t at = BEHIND(line, "material:"); at != std::string_view::npos)
            return MATERIAL(std::string(line.substr(at)));
        if (ISDIGITWEAK(line)) POINT(std::string(line));
    }
    void END() {
        CLOSE(material);
        cloud.NEWOBJECT(OBJECT_NAME("", fileName));
    }

private:
    // The first material line of a text decides for all: behind points it belongs to the line that
    // it closes, as in a saved cloud, else to the lines that follow.
    enum class SIDE { UNKNOWN, BEHIND_LINE, AHEAD };

    void POINT(std::string text) {
        hasPoints = true;
        if (!isKept) return;
        HYPER point;
        point.x = CUTREAL(text);
        point.y = CUTREAL(text);
        point.z = CUTREAL(text);
        point.w = CUTREAL(text);
        cloud.NEWPOINT(point);
    }
    void MATERIAL(std::string rest) {
        const NAT number = CUTNAT(rest);
        if (side == SIDE::UNKNOWN) side = hasPoints ? SIDE::BEHIND_LINE : SIDE::AHEAD;
        if (side == SIDE::AHEAD) {
            CLOSE(material);
            material = number;
        } else if (hasPoints) {
            CLOSE(number);
        } else {
            cloud.PUTMATERIAL(lastClosed, number); // an empty line stood between
        }
    }
    void CLOSE(NAT number) {
        if (!hasPoints) return;
        cloud.NEWLINE(number);
        lastClosed = isKept ? cloud.GETLINELENGTH() : 0;
        hasPoints = false;
        DRAW();
    }
    void DRAW() { isKept = !share || share->random.FRACTION() * 100 < share->percent; }

    TCLOUD &cloud;
    UTF16 fileName;
    const LINE_SHARE *share;
    SIDE side = SIDE::UNKNOWN;
    NAT material = 0;       // of the lines that follow
    NAT lastClosed = 0;     // position of the last line of this object, 0: none
    bool hasPoints = false; // the current line has some, kept or not
    bool isKept = true;
};

bool LOAD_FILE(TCLOUD &cloud, const UTF16 &name, const LINE_SHARE *share) {
    TFILETEXT text;
    if (!text.LOAD(name)) return false;
    READ_LINE_TEXT(cloud, text, name, share);
    return true;
}

bool LOAD_ALL(TCLOUD &cloud, const UTF16 &name, const LINE_SHARE *share) {
    if (!HAS_WILDCARD(name)) return LOAD_FILE(cloud, name, share);
    TFILELIST files;
    files.INIT(name);
    if (files.LENGTH < 1) return LOAD_FILE(cloud, name, share); // tells that there is none
    bool isLoaded = true;
    for (NAT i = 1; i <= files.LENGTH; ++i)
        isLoaded = LOAD_FILE(cloud, files.GET(i).GET(), share) && isLoaded;
    return isLoaded;
}
} // namespace

void READ_LINE_TEXT(TCLOUD &cloud, const TFILETEXT &text, const UTF16 &fileName,
                    const LINE_SHARE *share) {
    cloud.NEWOBJECT("repaired"); // lines of before that belong to no object yet
    LINE_TEXT_READER reader(cloud, fileName, share);
    for (NAT line = 1; line <= text.LENGTH(); ++line)
        reader.READ(text.GETVIEW(line));
    reader.END();
}

bool TCLOUD::LOAD(const UTF16 &name) { return LOAD_ALL(*this, name, nullptr); }

bool TCLOUD::LOAD(const UTF16 &name, REAL percent, RANDOM_STREAM &random) {
    const LINE_SHARE share{percent, random};
    return LOAD_ALL(*this, name, &share);
}
} // namespace morvane
