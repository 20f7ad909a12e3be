#include "lpc/Commands.h"

#include <iostream>

int main(int argc, char* argv[])
{
    return lpctool::RunTool(lpctool::Arguments(argv + 1, argv + argc), std::cin, std::cout, std::cerr);
}
