#include "script/module/matrix_values.hpp"

#include "foundation/base/matrix4.hpp"
#include "foundation/base/symmatrix3.hpp"
#include "script/engine/constant_table.hpp"
#include "script/module/math_parameters.hpp"

#include <algorithm>

namespace morvane {
namespace {
// Whether the text is four rows parted by ";". With a decimal comma the numbers are parted by it.
bool IsFourRows(const UTF16 &text) {
    const std::string_view low = text.LOWBYTES.VIEW();
    return FORMAT.DECIMAL && text.PLAIN() && std::count(low.begin(), low.end(), ';') == 3;
}

// The parameters as one text, each number or vector in its place.
UTF16 Joined(std::span<const UTF16> parameters, const char *separator) {
    UTF16 joined;
    for (const UTF16 &parameter : parameters) {
        if (!joined.EMPTY()) joined += separator;
        joined += parameter;
    }
    return joined;
}

// 16 numbers one behind the other, whatever parts them.
MATRIX4 SixteenNumbers(UTF16 text) {
    MATRIX4 matrix;
    for (HYPER &row : matrix.rows) {
        row.x = CUTREAL(text);
        row.y = CUTREAL(text);
        row.z = CUTREAL(text);
        row.w = CUTREAL(text);
    }
    return matrix;
}

bool IsWhole(const UTF16 &text) { return COUNT_NUMBERS(text, 9) == 9 || IsFourRows(text); }
} // namespace

bool GETMATRIX3_MACRO(std::span<const UTF16> parameters, MATRIX3 &matrix) {
    const std::size_t count = parameters.size();
    if (count == 1 && !IsFourRows(parameters[0]) && COUNT_NUMBERS(parameters[0], 10) == 9)
        matrix = GETMATRIX3(parameters[0]);
    else if (count == 3)
        matrix = {{GETVECTOR(parameters[0]), GETVECTOR(parameters[1]), GETVECTOR(parameters[2])}};
    else if (count == 9)
        for (std::size_t i = 0; i < 3; ++i)
            matrix[i] = {GETREAL(parameters[3 * i]), GETREAL(parameters[3 * i + 1]),
                         GETREAL(parameters[3 * i + 2])};
    else
        return false;
    return true;
}

bool GETMATRIX4_MACRO(std::span<const UTF16> parameters, MATRIX4 &matrix) {
    const std::size_t count = parameters.size();
    if (count == 1 && IsFourRows(parameters[0]))
        matrix = GETMATRIX4(parameters[0]);
    else if (count == 1 && COUNT_NUMBERS(parameters[0], 17) == 16)
        matrix = SixteenNumbers(parameters[0]);
    else if (count == 4)
        for (std::size_t i = 0; i < 4; ++i)
            matrix[i] = GETHYPER(parameters[i]);
    else if (count == 16)
        for (std::size_t i = 0; i < 4; ++i)
            matrix[i] = {GETREAL(parameters[4 * i]), GETREAL(parameters[4 * i + 1]),
                         GETREAL(parameters[4 * i + 2]), GETREAL(parameters[4 * i + 3])};
    else
        return false;
    return true;
}

bool GETMATRIX_MACRO(std::span<const UTF16> parameters, ANY_MATRIX &matrix) {
    MATRIX3 three;
    MATRIX4 four;
    if (GETMATRIX3_MACRO(parameters, three))
        matrix = three;
    else if (GETMATRIX4_MACRO(parameters, four))
        matrix = four;
    else
        return false;
    return true;
}

bool GETSYMMATRIX3_MACRO(std::span<const UTF16> parameters, SYMMATRIX3 &matrix) {
    const std::size_t count = parameters.size();
    MATRIX3 full;
    if (GETMATRIX3_MACRO(parameters, full)) {
        matrix = GETSYMMATRIX3(full);
        return true;
    }
    if (count == 2) {
        matrix = {GETVECTOR(parameters[0]), GETVECTOR(parameters[1])};
        return true;
    }
    if (count != 6 && (count != 1 || COUNT_NUMBERS(parameters[0], 7) != 6)) return false;
    matrix = GETSYMMATRIX3(Joined(parameters, FORMAT.DECIMAL ? ", " : "; "));
    return true;
}

bool GETMATRICES_MACRO(std::span<const UTF16> parameters, std::vector<ANY_MATRIX> &matrices) {
    const std::size_t count = parameters.size();
    const auto add = [&](std::size_t first, std::size_t length) {
        ANY_MATRIX matrix;
        if (!GETMATRIX_MACRO(parameters.subspan(first, length), matrix)) return false;
        matrices.push_back(matrix);
        return true;
    };
    if (std::all_of(parameters.begin(), parameters.end(), IsWhole)) {
        for (std::size_t i = 0; i < count; ++i)
            if (!add(i, 1)) return false;
        return true;
    }
    if (count != 6 && count != 8 && count != 18 && count != 32) return false;
    return add(0, count / 2) && add(count / 2, count / 2);
}

bool SPLIT_VECTORS(std::span<const UTF16> parameters, std::span<const UTF16> &vectors,
                   ANY_MATRIX &matrix) {
    if (parameters.size() < 2) return false;
    const std::size_t before = IsWhole(parameters.back()) ? parameters.size() - 1 : 1;
    vectors = parameters.first(before);
    return GETMATRIX_MACRO(parameters.subspan(before), matrix);
}

MATRIX4 AS_MATRIX4(const ANY_MATRIX &matrix) {
    if (const MATRIX4 *four = std::get_if<MATRIX4>(&matrix)) return *four;
    return GETMATRIX4(*std::get_if<MATRIX3>(&matrix));
}

MATRIX3 AS_MATRIX3(const ANY_MATRIX &matrix) {
    if (const MATRIX3 *three = std::get_if<MATRIX3>(&matrix)) return *three;
    return GETMATRIX3(*std::get_if<MATRIX4>(&matrix));
}

namespace {
// places 0: all digits.
UTF16 RowsText(const ANY_MATRIX &matrix, MATRIX_FORM form, bool blanks, NAT places) {
    const bool isFour = std::holds_alternative<MATRIX4>(matrix);
    const MATRIX4 rows = AS_MATRIX4(matrix);
    const UTF16 inside = form == MATRIX_FORM::NUMBERS ? " "
                         : FORMAT.DECIMAL             ? (blanks ? ", " : ",")
                                                      : (blanks ? "; " : ";");
    UTF16 text;
    for (std::size_t i = 0; i < (isFour ? 4u : 3u); ++i) {
        const HYPER &row = rows[i];
        if (i > 0) text += form == MATRIX_FORM::MATRIX ? ";" : " ";
        if (form != MATRIX_FORM::NUMBERS) text += "<";
        text += GETSHORT(row.x, places) + inside + GETSHORT(row.y, places) + inside +
                GETSHORT(row.z, places);
        if (isFour) text += inside + GETSHORT(row.w, places);
        if (form != MATRIX_FORM::NUMBERS) text += ">";
    }
    return form == MATRIX_FORM::MATRIX ? "(" + text + ")" : text;
}
} // namespace

UTF16 MATRIX_TEXT(const ANY_MATRIX &matrix, MATRIX_FORM form) {
    constexpr NAT MOST_PLACES = 16;
    UTF16 text = RowsText(matrix, form, true, 0);
    if (text.LENGTH() > LONGEST_TEXT) text = RowsText(matrix, form, false, 0);
    for (NAT places = MOST_PLACES; places > 0 && text.LENGTH() > LONGEST_TEXT; --places)
        text = RowsText(matrix, form, false, places);
    return text;
}
} // namespace morvane
