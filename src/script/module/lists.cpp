#include "script/module/lists.hpp"

#include "foundation/base/number_text.hpp"

namespace morvane {
namespace {
constexpr KIND_WORD KINDS[] = {{LIST_REAL, "real"},       {LIST_NAT, "nat"},
                               {LIST_COMPLEX, "complex"}, {LIST_VECTOR, "vector"},
                               {LIST_HYPER, "hyper"},     {LIST_CHARS, "chars"}};
constexpr REAL STANDARD_FACTOR = 3;

UTF16 SizeText(const TLIST &list) { return "(" + GETSTRING(list.LENGTH()) + ")"; }

constexpr WORKSPACE_WORDS<TLIST> WORDS = {
    .name = "list",
    .dump = "list",
    .current = "List",
    .list = "List",
    .field = "list",
    .kind = LIST_REAL,
    .init = [](TLIST &list, BYTE kind) { list.INIT(kind); },
    .describe = [](const TLIST &list) { return DESCRIBE_KIND(KINDS, list.KIND(), SizeText(list)); },
    .size = SizeText,
    .notEmpty = [](const TLIST &list) { return list.LENGTH() > 0; },
    .same = nullptr};
} // namespace

TWORKSPACE<TLIST> LISTS(WORDS);
REAL OUTLIER_FACTOR = STANDARD_FACTOR;

UTF16 LISTKIND(BYTE kind) { return DESCRIBE_KIND(KINDS, kind, {}); }

void INIT_LISTS() {
    LISTS.RESETKIND();
    LISTS.INIT();
    OUTLIER_FACTOR = STANDARD_FACTOR;
}
} // namespace morvane
