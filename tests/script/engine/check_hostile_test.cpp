#include "script/engine/check_setup.hpp"

#include <doctest/doctest.h>

#include <random>

using namespace morvane;
using check_setup::FOUND;

namespace {
constexpr std::string_view WORDS[] = {"for",
                                      "end",
                                      "until",
                                      "then",
                                      "else",
                                      "of",
                                      "ofnot",
                                      "if",
                                      "with",
                                      "store",
                                      "append",
                                      "ignore",
                                      "procedure",
                                      "function",
                                      "sub",
                                      "minimize",
                                      "maximize",
                                      "while",
                                      "repeat",
                                      "for.part",
                                      "for.random",
                                      "halt",
                                      "break",
                                      "import",
                                      "include",
                                      "part",
                                      "m",
                                      "scalar",
                                      "print",
                                      "max",
                                      "load",
                                      ":=",
                                      "+=",
                                      "= ",
                                      "\"",
                                      "'",
                                      "<",
                                      "]",
                                      "[2]",
                                      "@a",
                                      "@@i",
                                      "@@q",
                                      "@",
                                      "//",
                                      "a",
                                      "1",
                                      "",
                                      ".",
                                      "var",
                                      "local",
                                      "case",
                                      "\n",
                                      "\n",
                                      "\n",
                                      "\n",
                                      "\n",
                                      "\t",
                                      "\xC3",
                                      "\xE2\x82\xAC",
                                      "scalar.load",
                                      "x.nii",
                                      "output.store",
                                      "begin",
                                      "!"};

std::string RandomText(std::mt19937 &random, int words) {
    std::string text;
    for (int i = 0; i < words; ++i) {
        text += WORDS[random() % std::size(WORDS)];
        if (random() % 3 != 0) text += ' ';
    }
    return text;
}
} // namespace

TEST_CASE("any text can be checked, with what it imports") {
    const SCRATCH_FOLDER folder;
    std::mt19937 random(1);
    for (int i = 0; i < 2000; ++i) {
        SCRATCH_FOLDER::WRITE_TEXT("part", RandomText(random, 20));
        const std::string found = FOUND(RandomText(random, 60));
        CHECK(found.find("not read") == std::string::npos);
        // Every finding has its place.
        std::size_t start = 0;
        for (std::size_t end; (end = found.find('\n', start)) != std::string::npos; start = end + 1)
            CHECK(found.substr(start, end - start).find(": ") != std::string::npos);
    }
}

TEST_CASE("any bytes can be checked") {
    const SCRATCH_FOLDER folder;
    std::mt19937 random(2);
    for (int i = 0; i < 300; ++i) {
        std::string bytes(200, ' ');
        for (char &byte : bytes)
            byte = static_cast<char>(random() % 256);
        CHECK(FOUND(bytes).find("not read") == std::string::npos);
    }
}

TEST_CASE("a line of a million letters and one of a hundred thousand words are checked in time") {
    const SCRATCH_FOLDER folder;
    CHECK(FOUND(std::string(1'000'000, 'a') + "\n").size() > 1'000'000);
    std::string words = "wait";
    for (int i = 0; i < 100'000; ++i)
        words += " 5";
    CHECK(FOUND(words + "\n").empty()); // too long to be counted
}

TEST_CASE("blocks may stand in each other ten thousand deep") {
    const SCRATCH_FOLDER folder;
    std::string script;
    for (int i = 0; i < 10'000; ++i)
        script += "with a\n";
    for (int i = 0; i < 10'000; ++i)
        script += "end\n";
    CHECK(FOUND(script).empty());
}

TEST_CASE("files that import one another twice each come to an end") {
    const SCRATCH_FOLDER folder;
    for (int i = 0; i < 30; ++i) {
        const std::string next = "import f" + std::to_string(i + 1) + "\n";
        SCRATCH_FOLDER::WRITE_TEXT("f" + std::to_string(i), next + next);
    }
    SCRATCH_FOLDER::WRITE_TEXT("f30", "print 1\n");
    CHECK(FOUND("import f0\n").find("too many import files") != std::string::npos);
}

TEST_CASE("a run with imports at any place ends") {
    const SCRATCH_FOLDER folder;
    std::mt19937 random(3);
    constexpr std::string_view LINES[] = {
        "for 2\n",  "end\n",          "import part\n",      "import other\n", "p 1\n",
        "x := f\n", "process\n",      "while a\na := 0\n",  "a := 1\n",       "if 1\n",
        "then\n",   "else\n",         "procedure p\n",      "function f\n",   "print x\n",
        "ignore\n", "with scalar\n",  "repeat\n",           "until 1\n",      "for.random 2\n",
        "case 1\n", "of 1 print b\n", "minimize 0 1 3 z\n", "result := 1\n"};
    const auto text = [&](int lines) {
        std::string result;
        for (int i = 0; i < lines; ++i)
            result += LINES[random() % std::size(LINES)];
        return result;
    };
    for (int i = 0; i < 1000; ++i) {
        SCRATCH_FOLDER::WRITE_TEXT("part", text(5));
        SCRATCH_FOLDER::WRITE_TEXT("other", text(3));
        SCRIPT_RUNNER runner;
        runner.engine.switches.LINES = 5000;
        CHECK(runner.RUN(text(20)).find("no run") == std::string::npos);
    }
}
