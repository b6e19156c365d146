#include "foundation/console/gz_rescue.hpp"

#include "support/capture.hpp"
#include "support/scratch_folder.hpp"

#include <doctest/doctest.h>

using namespace morvane;

namespace {
std::string PACKED(const SCRATCH_FOLDER &folder, std::string_view text) {
    FILE_WRITE file;
    REQUIRE(ASSIGNGZWRITE(file, "packed.gz"));
    REQUIRE(file.WRITE(text));
    REQUIRE(file.COMMIT());
    return folder.READ("packed.gz");
}

// What is rescued of these bytes.
GZ_RESCUE RESCUED(const SCRATCH_FOLDER &folder, std::string_view bytes, std::string &text) {
    folder.WRITE("a.gz", bytes);
    FILE_WRITE file;
    REQUIRE(ASSIGNWRITE(file, "text"));
    const GZ_RESCUE result = RESCUE_GZ("a.gz", &file);
    REQUIRE(file.COMMIT());
    text = folder.READ("text");
    return result;
}
} // namespace

TEST_CASE("a gz file cut at every length gives a beginning of its text") {
    const CAPTURE console;
    const SCRATCH_FOLDER folder;
    std::string whole, text;
    for (int i = 0; i < 100; ++i)
        whole += std::to_string(i * 7919 % 10007) + " ";
    const std::string bytes = PACKED(folder, whole);
    NAT last = 0;
    for (std::size_t length = 0; length < bytes.size(); ++length) {
        const GZ_RESCUE result = RESCUED(folder, bytes.substr(0, length), text);
        CHECK(result.opened);
        CHECK(result.broken);
        CHECK(result.count == static_cast<NAT>(text.size()));
        CHECK(whole.starts_with(text));
        CHECK(result.count >= last);
        last = result.count;
    }
    CHECK(text == whole);
    CHECK_FALSE(RESCUED(folder, bytes, text).broken);
    CHECK(text == whole);
}

TEST_CASE("counting the bytes of a gz file needs no target") {
    const CAPTURE console;
    const SCRATCH_FOLDER folder;
    PACKED(folder, std::string(200000, 'a'));
    const GZ_RESCUE result = RESCUE_GZ("packed.gz", nullptr);
    CHECK(result.opened);
    CHECK_FALSE(result.broken);
    CHECK(result.count == 200000);
    CHECK_FALSE(RESCUE_GZ("none.gz", nullptr).opened);
    CHECK(console.CONTAINS("  File (none.gz) not found."));
}
