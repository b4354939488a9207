#include "golden/frozen_cards.h"

#include <fstream>
#include <sstream>

namespace test {

namespace {

constexpr int kNames = 121;

}  // namespace

void FreezeCards(const TemporaryFolder& folder)
{
    std::ifstream cards("cards.txt");
    for (std::string line; std::getline(cards, line);) {
        std::istringstream words(line);
        std::string name;
        std::string figures;
        words >> name;
        for (std::string figure; words >> figure;) {
            figures += figure + "\r\n";
        }
        const bool offer = name.front() == 'R';
        folder.Write("Actions/" + name, offer ? "\"offer\"\r\n" + figures
                                              : figures + "\"title\"\r\n\"effects\"\r\n\"result\"\r\n");
    }
    std::string names;
    for (int i = 1; i <= kNames; ++i) {
        names += "\"N" + std::to_string(i) + "\"\r\n";
    }
    folder.Write("data/names", names);
}

}  // namespace test
