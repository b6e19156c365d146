#include "script/file/file.hpp"
#include "script/module/text_lines.hpp"
#include "script/module/use_all.hpp"
#include "text_script.hpp"

#include <sys/stat.h>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
constexpr std::string_view NOTES = "head\nsize 1\nsize 2\nfoot\n";

std::string Repeated(std::string_view text, int count) {
    std::string repeated;
    for (int i = 0; i < count; ++i)
        repeated += text;
    return repeated;
}
} // namespace

TEST_CASE("text.replace replaces every occurrence and never looks at what it put in") {
    TEXT_SCRIPT script;
    CHECK(script.AFTER("text.replace a.txt a aa", "a.txt", "a-a\nb\naXa") == "aa-aa\nb\naaXaa");
    CHECK(script.AFTER("text.replace a.txt aa b", "a.txt", "aaa\n") == "ba\n");
    CHECK(script.AFTER("text.replace a.txt A b", "a.txt", "aaa\n") == "aaa\n");
}

TEST_CASE("text.replace without a replacement removes the text") {
    TEXT_SCRIPT script;
    CHECK(script.AFTER("text.replace a.txt \" mm\"", "a.txt", "1 mm\n2 mm\n") == "1\n2\n");
}

TEST_CASE("an empty variable is a replacement, so that a target can follow") {
    TEXT_SCRIPT script;
    CHECK(script.AFTER("var none\ntext.replace a.txt x none b.txt", "a.txt", "axb\n") == "axb\n");
    CHECK(script.folder.READ("b.txt") == "ab\n");
}

TEST_CASE("text.delete.before and .after keep the first line with the text") {
    TEXT_SCRIPT script;
    CHECK(script.AFTER("text.delete.before a.txt size", "a.txt", NOTES) ==
          "size 1\nsize 2\nfoot\n");
    CHECK(script.AFTER("text.delete.after a.txt size", "a.txt", NOTES) == "head\nsize 1\n");
    CHECK(script.AFTER("text.delete.before a.txt head", "a.txt", NOTES) == NOTES);
    CHECK(script.AFTER("text.delete.after a.txt foot", "a.txt", NOTES) == NOTES);
}

TEST_CASE("a mark that stands nowhere takes nothing away and is told") {
    for (const char *command : {"text.delete.before", "text.delete.after"}) {
        TEXT_SCRIPT script;
        script.folder.WRITE("a.txt", NOTES);
        CHECK(script.RUN(std::string(command) + " a.txt width") ==
              "  Text (width) not found in file (a.txt).\n");
        CHECK(script.folder.READ("a.txt") == NOTES);
    }
}

TEST_CASE("text.delete.line and filter.not drop every line with the text") {
    for (const char *command : {"text.delete.line", "text.filter.not", "txt.delete.line"}) {
        TEXT_SCRIPT script;
        CHECK(script.AFTER(std::string(command) + " a.txt size", "a.txt", NOTES) == "head\nfoot\n");
        CHECK(script.AFTER(std::string(command) + " a.txt x", "a.txt", NOTES) == NOTES);
    }
}

TEST_CASE("text.delete.other and filter drop every line without the text") {
    for (const char *command : {"text.delete.other", "text.filter", "txt.filter"}) {
        TEXT_SCRIPT script;
        CHECK(script.AFTER(std::string(command) + " a.txt size", "a.txt", NOTES) ==
              "size 1\nsize 2\n");
        CHECK(script.AFTER(std::string(command) + " a.txt x", "a.txt", NOTES) == "");
    }
}

TEST_CASE("text.ignore drops what stands before or after the first mark of a line") {
    TEXT_SCRIPT script;
    CHECK(script.AFTER("text.ignore.before a.txt =", "a.txt", "a=1=2\nb\n=3") == "=1=2\nb\n=3");
    CHECK(script.AFTER("text.ignore.after a.txt =", "a.txt", "a=1=2\nb\n=3") == "a=\nb\n=");
}

TEST_CASE("text.split puts a line end in place of the text, of the line's own kind") {
    TEXT_SCRIPT script;
    CHECK(script.AFTER("text.split a.txt \";\"", "a.txt", "a;b\nc\n") == "a\nb\nc\n");
    CHECK(script.AFTER("text.split a.txt \";\"", "a.txt", "a;b\r\n;c") == "a\r\nb\r\n\r\nc");
    CHECK(script.AFTER("text.split a.txt \";\"", "a.txt", "a;b") == "a\nb");
}

TEST_CASE("each line keeps its own end, and a last line without one stays so") {
    TEXT_SCRIPT script;
    constexpr std::string_view MIXED = "x1\r\nx2\rx3\n\r\nx4";
    CHECK(script.AFTER("text.replace a.txt x y", "a.txt", MIXED) == "y1\r\ny2\ry3\n\r\ny4");
    CHECK(script.AFTER("text.filter.not a.txt 2", "a.txt", MIXED) == "x1\r\nx3\n\r\nx4");
    CHECK(script.AFTER("text.delete.after a.txt x1", "a.txt", MIXED) == "x1\r\n");
}

TEST_CASE("lines that no filter touches keep every byte") {
    TEXT_SCRIPT script;
    const std::string bytes("\xEF\xBB\xBFk\xFF\xC3 \0\x01\t\x80\n\xF0\x9F\x98\x80 \xE2\x82\n", 18);
    CHECK(script.AFTER("text.replace a.txt zz y", "a.txt", bytes) == bytes);
    CHECK(script.AFTER("text.filter.not a.txt zz", "a.txt", bytes) == bytes);
}

TEST_CASE("lines may be longer than any value of the language") {
    TEXT_SCRIPT script;
    const std::string line = Repeated("0123456789", 100000);
    CHECK(script.AFTER("text.replace a.txt 9 x", "a.txt", "a\n" + line + "\n") ==
          "a\n" + Repeated("012345678x", 100000) + "\n");
    script.folder.WRITE("a.txt", "a\n" + line + "\n");
    CHECK(script.VALUE("text.find a.txt 9") == line.substr(0, 254));
}

TEST_CASE("a long found line is cut between two characters") {
    TEXT_SCRIPT script;
    script.folder.WRITE("a.txt", Repeated("€", 3000) + "\n");
    CHECK(script.VALUE("text.find a.txt €") == Repeated("€", 254));
}

TEST_CASE("texts are compared as UTF-8 and may hold quotes and tabs") {
    TEXT_SCRIPT script;
    CHECK(script.AFTER("text.replace a.txt µm mm", "a.txt", "5 µm\n") == "5 mm\n");
    CHECK(script.AFTER("text.replace a.txt '\"' \"'\"", "a.txt", "say \"a\"\n") == "say 'a'\n");
    CHECK(script.AFTER("text.replace a.txt #9 \";\"", "a.txt", "1\t2\n") == "1;2\n");
}

TEST_CASE("a target leaves the file as it was") {
    TEXT_SCRIPT script;
    CHECK(script.AFTER("txt.filter a.txt size b.txt", "a.txt", NOTES) == NOTES);
    CHECK(script.folder.READ("b.txt") == "size 1\nsize 2\n");
}

TEST_CASE("a file of fewer than 2 bytes has no lines and stays as it is") {
    TEXT_SCRIPT script;
    for (const char *line :
         {"text.filter a.txt x", "text.replace a.txt a b", "text.split a.txt a"}) {
        CHECK(script.AFTER(line, "a.txt", "a") == "a");
        CHECK(script.AFTER(line, "a.txt", "") == "");
    }
    CHECK(script.VALUE("text.count a.txt a") == "0");
}

TEST_CASE("names that end in gz are packed files") {
    TEXT_SCRIPT script;
    TFILE packed;
    script.folder.WRITE("a.txt", NOTES);
    script.RUN("text.filter a.txt size a.txt.gz\ntext.replace a.txt.gz size s");
    REQUIRE(packed.LOAD("a.txt.gz"));
    CHECK(packed.VIEW() == "s 1\ns 2\n");
    CHECK(script.folder.READ("a.txt.gz").substr(0, 2) == "\x1F\x8B");
}

TEST_CASE("text.count counts lines, not occurrences") {
    TEXT_SCRIPT script;
    script.folder.WRITE("a.txt", "x x\ny\nx");
    CHECK(script.VALUE("text.count a.txt x") == "2");
    CHECK(script.VALUE("txt.count a.txt z") == "0");
}

TEST_CASE("text.find gives the first line with the text, empty when there is none") {
    TEXT_SCRIPT script;
    script.folder.WRITE("a.txt", "a\nb\t1\r\nb\t2\n");
    CHECK(script.VALUE("text.find a.txt b") == "b\t1");
    CHECK(script.VALUE("txt.find a.txt c") == "");
}

TEST_CASE("text.find.all joins the lines by tabs, and a tab inside a line becomes a blank") {
    TEXT_SCRIPT script;
    script.folder.WRITE("a.txt", "b 0\na\nb\t1\r\nb 2");
    CHECK(script.VALUE("text.find.all a.txt b") == "b 0\tb 1\tb 2");
    CHECK(script.VALUE("txt.find.all a.txt c") == "");
}

TEST_CASE("a file that is not there is told, and neither a value nor a file comes of it") {
    TEXT_SCRIPT script;
    CHECK(script.RUN("v := text.count a.txt x\ntext.filter a.txt x b.txt\n") ==
          "DOS-Error\n  File (a.txt) not found.\nDOS-Error\n  File (a.txt) not found.\n");
    CHECK(script.VALUE("text.count a.txt x") == "");
    CHECK_FALSE(script.folder.HAS("b.txt"));
    CHECK(script.engine.STATUS.EMPTY());
}

TEST_CASE("a filter that cannot write leaves the file as it was and nothing beside it") {
    TEXT_SCRIPT script;
    script.folder.WRITE("a.txt", NOTES);
    REQUIRE(chmod("a.txt", 0444) == 0);
    const WITHOUT_ROOT user;
    CHECK(script.RUN("text.filter a.txt size") == "DOS-Error\n  File (a.txt) access denied.\n");
    CHECK(script.folder.READ("a.txt") == NOTES);
    CHECK(script.folder.FILES() == 1);
}

TEST_CASE("a target that is a directory is told and the file stays") {
    TEXT_SCRIPT script;
    script.folder.WRITE("a.txt", NOTES);
    REQUIRE(std::filesystem::create_directory("d"));
    CHECK(script.RUN("text.filter a.txt size d").starts_with("DOS-Error\n"));
    CHECK(script.folder.READ("a.txt") == NOTES);
    CHECK(script.folder.FILES() == 2);
}

TEST_CASE("an empty text to search for stops the script before anything is written") {
    for (const char *command : {"text.filter", "text.replace", "text.split", "text.split.file",
                                "text.ignore.after", "text.delete.line"}) {
        TEXT_SCRIPT script;
        script.folder.WRITE("a.txt", NOTES);
        CHECK(script.RUN("var none\n" + std::string(command) + " a.txt none") ==
              "Error (empty text to search for) in line 2 (test.macro)!\n");
        CHECK(script.folder.READ("a.txt") == NOTES);
    }
}

TEST_CASE("wrong counts of parameters are reported") {
    TEXT_SCRIPT script;
    CHECK(script.RUN("text.filter a.txt") ==
          "Parameter error! Please use min. 2 parameters in line 1 (test.macro).\n");
    CHECK(script.RUN("text.filter a b c d") ==
          "Parameter error! Please use max. 3 parameters in line 1 (test.macro).\n");
    CHECK(script.RUN("v := text.count a.txt") ==
          "Parameter error! Please use 2 parameters in line 1 (test.macro).\n");
    CHECK(script.RUN("text.collect a b") ==
          "Parameter error! Please use 3 parameters in line 1 (test.macro).\n");
}

TEST_CASE("an engine without files reads and writes none") {
    TEXT_SCRIPT script;
    script.folder.WRITE("a.txt", NOTES);
    script.engine.switches.FILES = false;
    CHECK(script.RUN("text.filter a.txt size\ntext.filter a.txt size b.txt") == "");
    CHECK(script.VALUE("text.count a.txt size") == "");
    CHECK(script.folder.READ("a.txt") == NOTES);
    CHECK(script.folder.FILES() == 1);
}

TEST_CASE("every command of text. stands under txt. too, with a usage of its own") {
    REQUIRE(TEXT_SET.rows.size() == 18);
    REQUIRE(TXT_SET.rows.size() == 18);
    for (std::size_t i = 0; i < TEXT_SET.rows.size(); ++i) {
        const COMMAND_ROW &text = TEXT_SET.rows[i], &txt = TXT_SET.rows[i];
        CHECK(text.name == txt.name);
        CHECK((text.handler == txt.handler));
        std::string usage(text.usage);
        usage.replace(usage.find("text."), 5, "txt.");
        CHECK(txt.usage == usage);
    }
    CHECK(TXT_SET.rows[0].usage == "txt.replace notes.txt red blue");
    CHECK(TXT_SET.rows[9].usage == "a := txt.count notes.txt size");
}

TEST_CASE("the usage lines of the text commands do what they say") {
    TEXT_SCRIPT script;
    for (const COMMAND_SET *set : {&TEXT_SET, &TXT_SET})
        for (const COMMAND_ROW &row : set->rows) {
            script.folder.WRITE("notes.txt",
                                "red size 5 mm\nEnd of header;Chapter\n---\nSummary\n");
            script.folder.WRITE("run.log", "an error\n");
            INFO(std::string(row.usage));
            const std::string told = script.RUN(std::string(row.usage));
            CHECK((told == "" || told == "  Text (draft) not found in file (notes.txt).\n"));
            CHECK(script.engine.STATUS.EMPTY());
        }
    CHECK(script.folder.READ("errors.txt") == "an error\nan error\n");
    CHECK(script.folder.READ("sizes.txt") == "red size 5 mm\n");
    CHECK(script.folder.READ("lines.txt") ==
          "red size 5 mm\nEnd of header\nChapter\n---\nSummary\n");
}
