// quenvale-console: the whole game on standard input and output, one request a line, one reply a line.
#include "console/session.h"

#include <clocale>
#include <iostream>
#include <string>

int main()
{
    std::setlocale(LC_ALL, "");  // amounts are written as the user's country writes them
    std::ios::sync_with_stdio(false);
    console::Session session;
    std::string line;
    while (std::getline(std::cin, line)) {
        if (const auto reply = session.Answer(line)) {
            std::cout << *reply << '\n' << std::flush;
        }
    }
    return 0;
}
