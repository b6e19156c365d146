#include "foundation/console/console.hpp"
#include "script/file/file_table.hpp"

#include <cstdint>
#include <cstdlib>
#include <memory>

// The reader and the writer of tables: any bytes give a table, and what is written of it reads
// equal. The first byte chooses the separator, the second the settings.
namespace {
using namespace morvane;

void Discard(std::string_view, void *) {}

void Set(TFILETABLE &table, std::uint8_t separator, std::uint8_t settings) {
    constexpr UTF16CHAR SEPARATORS[] = {{'\t', 0}, {';', 0}, {',', 0},  {' ', 0},
                                        {'/', 0},  {'#', 0}, {0xA7, 0}, {0xFF, 0xFE}};
    table.INIT();
    if (!table.SETMETHOD(SEPARATORS[separator % std::size(SEPARATORS)])) std::abort();
    table.SETJOIN(settings & 1);
    table.SETHEADER(settings >> 1 & 3, settings >> 3 & 3);
}

bool IsEqual(const TFILETABLE &a, const TFILETABLE &b) {
    if (a.LENGTHX() != b.LENGTHX() || a.LENGTHY() != b.LENGTHY()) return false;
    for (NAT y = 1; y <= a.LENGTHY(); ++y)
        for (NAT x = 1; x <= a.LENGTHX(); ++x)
            if (a.GETVIEW(x, y) != b.GETVIEW(x, y)) return false;
    return true;
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    if (size < 2) return 0;
    SETSINK(Discard, nullptr);
    const std::uint8_t separator = data[0], settings = data[1];
    // A buffer of exactly this size, so that a read behind its end is seen.
    const std::unique_ptr<char[]> bytes(new char[size - 2]);
    for (std::size_t i = 2; i < size; ++i)
        bytes[i - 2] = static_cast<char>(data[i]);
    TFILETABLE table, copy;
    Set(table, separator, settings);
    Set(copy, separator, settings);
    const bool comments = settings >> 5 & 1;
    if (!table.LOADBYTES({bytes.get(), size - 2}, comments)) std::abort();
    const std::string written = table.SAVEBYTES();
    if (!copy.LOADBYTES(written, !comments) || !IsEqual(table, copy)) std::abort();
    if (copy.SAVEBYTES() != written) std::abort();
    TPOLYREAL numbers;
    table.GETNUMBERS(table.ALLCOLUMNS(), table.ALLROWS(), numbers);
    if (numbers.LENGTH > table.LENGTHX() * table.LENGTHY()) std::abort();
    return 0;
}
