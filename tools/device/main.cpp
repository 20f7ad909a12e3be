#include "device/Tool.h"

#include <iostream>

int main(int argc, char* argv[])
{
    return devicetool::RunTool({argv + 1, argv + argc}, std::cin, std::cout, std::cerr);
}
