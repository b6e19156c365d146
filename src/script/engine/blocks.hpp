#pragma once

#include "foundation/base/records.hpp"

// The handlers of the block keywords; the keywords table binds them to their words. Each works on
// the frame of the block that it stands in.
namespace morvane {
class TMACRO;
struct BLOCK_FRAME;

void RUN_IMPORT(TMACRO &engine, BLOCK_FRAME &frame);
void RUN_IF(TMACRO &engine, BLOCK_FRAME &frame);          // all words that test their parameters
void RUN_IF_FILESIZE(TMACRO &engine, BLOCK_FRAME &frame); // the words that only clear the flag
void RUN_THEN(TMACRO &engine, BLOCK_FRAME &frame);
void RUN_ELSE(TMACRO &engine, BLOCK_FRAME &frame);
void RUN_CASE(TMACRO &engine, BLOCK_FRAME &frame);
void RUN_OF(TMACRO &engine, BLOCK_FRAME &frame);
void RUN_OFNOT(TMACRO &engine, BLOCK_FRAME &frame);

void RUN_FOR(TMACRO &engine, BLOCK_FRAME &frame);
void RUN_FOR_PART(TMACRO &engine, BLOCK_FRAME &frame);
void RUN_FOR_RANDOM(TMACRO &engine, BLOCK_FRAME &frame);
void RUN_PARALLEL(TMACRO &engine, BLOCK_FRAME &frame);
void RUN_WHILE(TMACRO &engine, BLOCK_FRAME &frame);
void RUN_REPEAT(TMACRO &engine, BLOCK_FRAME &frame);
void RUN_MINIMIZE(TMACRO &engine, BLOCK_FRAME &frame);
void RUN_MAXIMIZE(TMACRO &engine, BLOCK_FRAME &frame);

void RUN_IGNORE(TMACRO &engine, BLOCK_FRAME &frame);
void RUN_PROCESS(TMACRO &engine, BLOCK_FRAME &frame);
void RUN_WITH(TMACRO &engine, BLOCK_FRAME &frame);
void RUN_MODULE(TMACRO &engine, BLOCK_FRAME &frame);
void DECLARE_PROCEDURE(TMACRO &engine, BLOCK_FRAME &frame);
void DECLARE_FUNCTION(TMACRO &engine, BLOCK_FRAME &frame);
void DECLARE_SUB(TMACRO &engine, BLOCK_FRAME &frame);
void DECLARE_VAR(TMACRO &engine, BLOCK_FRAME &frame);
void DECLARE_LOCAL(TMACRO &engine, BLOCK_FRAME &frame);
void DECLARE_GLOBAL(TMACRO &engine, BLOCK_FRAME &frame);
void RUN_HALT(TMACRO &engine, BLOCK_FRAME &frame);
void RUN_BREAK(TMACRO &engine, BLOCK_FRAME &frame);
void HALT(TMACRO &engine);  // with the parameters that the engine holds
void BREAK(TMACRO &engine); // the same

void RUN_EXECUTE(TMACRO &engine, BLOCK_FRAME &frame);
void RUN_OUTPUT_STORE(TMACRO &engine, BLOCK_FRAME &frame);
void RUN_OUTPUT_APPEND(TMACRO &engine, BLOCK_FRAME &frame);
void RUN_STORE(TMACRO &engine, BLOCK_FRAME &frame);
void RUN_APPEND(TMACRO &engine, BLOCK_FRAME &frame);
void RUN_STORE_SPACE(TMACRO &engine, BLOCK_FRAME &frame);
} // namespace morvane
