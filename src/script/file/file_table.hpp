#pragma once

#include "foundation/container/poly_types.hpp"
#include "script/file/file_text.hpp"

#include <functional>
#include <string>
#include <vector>

namespace morvane {
// A grid of cells read from a delimited text file. Columns x and rows y count from 1; cells hold
// their text whole and as the bytes of the file (UTF-8). Rows may differ in length: a missing cell
// is empty.
class TFILETABLE : private TFILETEXT {
public:
    void INIT(); // no cells, and every setting as at the start
    void DONE(); // no cells; the settings stay

    // The column separator from now on; without one it is a tab, for .csv files the separator of
    // their first line or a comma. False, and nothing changed, for what ISSEPARATOR refuses.
    bool SETMETHOD(UTF16CHAR newSeparator);
    static bool ISSEPARATOR(UTF16CHAR unit);       // not zero, a quote or a line end
    void SETJOIN(bool newJoin) { join = newJoin; } // runs of separators count as one
    // The first x columns and y rows are the header: names, which are no data.
    void SETHEADER(NAT x, NAT y);
    COMPLEXNAT GETHEADER() const { return header; }

    // Reads a file; a failure is told and leaves no cells. A zero unit means the own separator.
    // Lines that begin with #, % or // are left out, LOAD_COMMENT keeps them.
    bool LOAD(const UTF16 &name, UTF16CHAR ownSeparator = {});
    bool LOAD_COMMENT(const UTF16 &name, UTF16CHAR ownSeparator = {});
    bool LOADBYTES(std::string_view bytes, bool comments = false); // from memory

    // Writes so that reading with the same settings gives the same cells. A failure is told.
    bool SAVE(const UTF16 &name) const;
    bool SAVE_TRANSPOSE(const UTF16 &name) const; // rows become columns
    bool SAVE_HEADER(const UTF16 &name) const;    // without the header: the data
    std::string SAVEBYTES() const;                // what SAVE writes

    NAT LENGTHX() const { return lengthX; }
    NAT LENGTHY() const { return static_cast<NAT>(rows.size()); }
    UTF16 GET(NAT x, NAT y) const;                // empty outside
    std::string_view GETVIEW(NAT x, NAT y) const; // the same as UTF-8, valid until a change
    // A whole column or row from its cell `first` on, parted by tabs; a tab in a cell is a blank.
    UTF16 GETCOLUMN(NAT x, NAT first = 1) const;
    UTF16 GETROW(NAT y, NAT first = 1) const;
    // The position of a header name, with or without its unit and without regard to case; 0 for
    // none. Without a header the first row or column holds the names.
    NAT SEARCHCOLUMN(const UTF16 &name) const;
    NAT SEARCHROW(const UTF16 &name) const;
    // The first data row whose cell in a column is this text or number; 0 for none.
    NAT SEARCHCELL(NAT x, const UTF16 &text) const;
    // Every cell of these columns and rows, less the header, that is a number; others are passed
    // over. Positions beyond the table are no cells.
    void GETNUMBERS(RANGENAT columns, RANGENAT inRows, TPOLYREAL &numbers) const;
    RANGENAT ALLCOLUMNS() const { return {1, LENGTHX()}; }
    RANGENAT ALLROWS() const { return {1, LENGTHY()}; }

    // Making a table. False after a told refusal: a position below 1, more than MOST_CELLS, or no
    // memory.
    bool NEW(NAT x, NAT y); // empty cells
    bool PUT(NAT x, NAT y, const UTF16 &text);
    bool ADDROW(const std::vector<UTF16> &texts);

    static constexpr NAT MOST_CELLS = NAT{1} << 24; // of a table made cell by cell

private:
    using ROW = std::vector<std::string>;
    struct PART { // what is written, and how
        COMPLEXNAT first{1, 1};
        bool transposed = false;
        std::string separator;
        std::string_view shunned; // separators that a reader could take for the chosen one
    };
    using SINK = std::function<bool(std::string_view)>;

    bool Load(const UTF16 &name, UTF16CHAR ownSeparator, bool comments);
    bool Parse(const std::string &cut, bool comments);
    std::string SeparatorOf(const UTF16 &name) const;
    bool IsAutomatic(const UTF16 &name) const;
    bool Grow(NAT x, NAT y);

    bool Save(const UTF16 &name, PART part) const;
    bool Write(const PART &part, const SINK &sink) const;
    void PutLine(const PART &part, NAT line, std::string &text) const;
    bool NeedsQuotes(const PART &part, std::string_view cell) const;

    std::vector<ROW> rows;
    NAT lengthX = 0; // of the longest row, or as made
    COMPLEXNAT header{0, 0};
    std::string separator; // UTF-8 of one unit; empty: by the file
    bool join = false;
};

// A name without blanks around it and without a unit in [ ] at its end: "Area [mm]" is "Area".
UTF16 WITHOUT_UNIT(const UTF16 &name);

// Whether a cell is a finite number, and which: [sign]digits[point digits][e digits], with blanks
// around it. The decimal sign follows FORMAT.DECIMAL.
bool CELL_NUMBER(std::string_view cell, REAL &value);
} // namespace morvane
