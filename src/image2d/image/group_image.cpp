#include "image2d/image/group_image.hpp"

#include "foundation/base/number_text.hpp"
#include "foundation/console/console.hpp"
#include "foundation/console/files.hpp"
#include "image2d/image/grey_view.hpp"
#include "image2d/image/result.hpp"

namespace morvane {
namespace {
UTF16 SizeText(const TIMAGE &image) {
    return GETSTRING(image.SIZEX()) + "x" + GETSTRING(image.SIZEY());
}

GROUP_RESULT GroupInto(const TIMAGE &source, const COMPLEXNAT &range, const GROUP_SIZES &sizes,
                       TIMAGE &groups) {
    return WITH_GREY(source, [&](const auto &canvas) {
        if (TGRAY *gray = groups._GRAY()) return GROUP(canvas, range, sizes, *gray);
        if (TFULLGRAY *full = groups._FULLGRAY()) return GROUP(canvas, range, sizes, *full);
        return GROUP_RESULT();
    });
}
} // namespace

GROUP_RESULT GROUP(const TIMAGE &source, const COMPLEXNAT &range, const GROUP_SIZES &sizes,
                   TIMAGE &target, bool keeps) {
    if (keeps && target.ISNOTEMPTY()) {
        if (target.ISGRAY() && target.SIZE() == source.SIZE())
            return GroupInto(source, range, sizes, target);
        WRITELN("  Groups of another size or kind (" + SizeText(target) + ", " + SizeText(source) +
                "): nothing added.");
        return {};
    }
    const BYTE kind = target.ISGRAY() ? target.ID() : IMAGE_FULLGRAY;
    IMAGE_RESULT result(target, source.SIZE(), kind);
    const GROUP_RESULT groups = GroupInto(source, range, sizes, result.image);
    const FRAME frame = source.GETFRAME();
    result.GIVE(source);
    target.SETFRAME(frame);
    return groups;
}

std::vector<GROUP_COUNT> COUNT_GROUPS(const TIMAGE &image) {
    if (const TGRAY *gray = image._GRAY()) return COUNT_GROUPS(*gray);
    if (const TFULLGRAY *full = image._FULLGRAY()) return COUNT_GROUPS(*full);
    return {};
}

NAT SORT_GROUPS(TIMAGE &image, const GROUP_ORDER &order) {
    if (TGRAY *gray = image._GRAY()) return SORT_GROUPS(*gray, order);
    if (TFULLGRAY *full = image._FULLGRAY()) return SORT_GROUPS(*full, order);
    return 0;
}

void UNSORT_GROUPS(TIMAGE &image) {
    RANDOM_STREAM random(NEXT_RANDOM_COMMAND(), 0);
    if (TGRAY *gray = image._GRAY()) UNSORT_GROUPS(*gray, random);
    if (TFULLGRAY *full = image._FULLGRAY()) UNSORT_GROUPS(*full, random);
}

bool SAVE_GROUPS(const TIMAGE &image, const UTF16 &name) {
    const std::vector<GROUP_COUNT> groups = COUNT_GROUPS(image);
    if (groups.empty()) {
        WRITELN("  No groups!");
        return false;
    }
    FILE_WRITE file;
    if (!ASSIGNWRITE(file, name)) return false;
    for (const GROUP_COUNT &group : groups)
        file.WRITELN(GETSTRING(group.number) + "\t" + GETSTRING(group.border) + "\t" +
                     GETSTRING(group.count) + "\t" + GETSTRING(group.FRACTION()));
    return file.COMMIT();
}
} // namespace morvane
