#include "tools/diarykit/commands/kit.h"

int main(int count, char** arguments) { return RunKit({arguments + 1, arguments + count}); }
