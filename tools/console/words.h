// The words of one request line, taken one after the other.
//
//     Words words("type frmName.Text1 \"Ada\"");
//     words.Name("a request");         // type
//     words.Name("a control");         // frmName.Text1
//     words.Text();                    // Ada
//     words.End();
//
// A word that is missing, of another kind or left over throws Refused.
#pragma once

#include "core/fields.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace console {

class Words {
public:
    explicit Words(std::string_view line);

    bool AtEnd() const { return next_ == words_.size(); }
    void End() const;          // nothing may be left
    std::string Peek() const;  // the next word as it stands; empty at the end

    std::string Name(std::string_view what);
    std::string Text();                         // a JSON string
    std::int64_t Count(std::string_view what);  // a whole number from 0
    double Number(std::string_view what);
    core::Value Value();  // a number or a text

private:
    struct Word {
        std::string text;
        bool quoted = false;
    };

    const Word& Take(std::string_view what);

    std::vector<Word> words_;
    std::size_t next_ = 0;
};

}  // namespace console
