#include "app/program.hpp"

int main(int argc, char **argv) { return morvane::RUN_PROGRAM(argc, argv); }
