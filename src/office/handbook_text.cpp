#include "office/handbook_text.h"

#include <utf8.h>

#include <algorithm>
#include <iterator>
#include <utility>

namespace office {

namespace {

constexpr std::pair<std::string_view, std::string_view> kEntities[] = {
    {"&amp;", "&"}, {"&lt;", "<"}, {"&gt;", ">"}, {"&quot;", "\""}, {"&nbsp;", " "},
};

std::string_view NameOf(std::string_view tag)
{
    tag.remove_prefix(std::min(tag.find_first_not_of('/'), tag.size()));
    return tag.substr(0, tag.find_first_of(" />\t\n"));
}

template <std::size_t kSize> bool IsOneOf(std::string_view name, const std::string_view (&names)[kSize])
{
    return std::find(std::begin(names), std::end(names), name) != std::end(names);
}

bool IsHeading(std::string_view name)
{
    return name.size() == 2 && name[0] == 'h' && name[1] >= '1' && name[1] <= '4';
}

std::size_t LengthOf(std::string_view text)
{
    return static_cast<std::size_t>(utf8::unchecked::distance(text.begin(), text.end()));
}

class Typesetter {
public:
    Handbook Set(std::string_view html)
    {
        while (!html.empty()) {
            const std::size_t tag = html.find('<');
            Take(html.substr(0, tag));
            html.remove_prefix(std::min(tag, html.size()));
            const std::size_t end = html.find('>');
            if (end == html.npos) {
                break;
            }
            Follow(html.substr(1, end - 1));
            html.remove_prefix(end + 1);
        }
        Break();
        return std::move(book_);
    }

private:
    void Follow(std::string_view tag)
    {
        static constexpr std::string_view kSilent[] = {"head", "style", "script", "svg", "figure"};
        static constexpr std::string_view kBlocks[] = {"p",  "div", "section", "li",     "tr",     "table",
                                                       "ul", "ol",  "header",  "footer", "caption"};
        const bool closes = tag.starts_with('/');
        const std::string_view name = NameOf(tag);
        if (IsOneOf(name, kSilent)) {
            silent_ += closes ? -1 : 1;
        } else if (name == "section" && !closes) {
            Mark(tag);
        }
        if (IsHeading(name)) {
            Break();
            Blank();
            heading_ = !closes;
        } else if (IsOneOf(name, kBlocks)) {
            Break();
            if (!closes && (name == "p" || name == "table")) {
                Blank();
            }
        } else if ((name == "td" || name == "th") && !closes && !line_.empty()) {
            line_ += "  |  ";
        }
        line_ += name == "li" && !closes ? "- " : "";
    }

    void Mark(std::string_view tag)
    {
        constexpr std::string_view kId = "id=\"";
        const std::size_t at = tag.find(kId);
        if (at != tag.npos) {
            Break();
            Blank();
            const std::string_view rest = tag.substr(at + kId.size());
            book_.chapters.emplace(rest.substr(0, rest.find('"')), book_.lines.size());
        }
    }

    // Words with one blank between them.
    void Take(std::string_view text)
    {
        if (silent_ > 0) {
            return;
        }
        for (std::size_t at = 0; at < text.size();) {
            if (std::string_view(" \t\r\n").find(text[at]) != std::string_view::npos) {
                line_ += line_.empty() || line_.ends_with(' ') ? "" : " ";
                ++at;
                continue;
            }
            const auto* const entity =
                std::find_if(std::begin(kEntities), std::end(kEntities),
                             [&](const auto& each) { return text.substr(at).starts_with(each.first); });
            const bool found = entity != std::end(kEntities);
            line_ += found ? entity->second : text.substr(at, 1);
            at += found ? entity->first.size() : 1;
        }
    }

    // Ends the line that is being set, in as many as it takes.
    void Break()
    {
        std::string_view rest = line_;
        rest.remove_suffix(rest.size() - std::min(rest.find_last_not_of(' ') + 1, rest.size()));
        while (!rest.empty()) {
            std::size_t end = rest.size();
            while (LengthOf(rest.substr(0, end)) > kHandbookColumns) {
                const std::size_t blank = rest.rfind(' ', end - 1);
                if (blank == rest.npos || blank == 0) {
                    break;
                }
                end = blank;
            }
            std::string line(rest.substr(0, end));
            if (heading_) {
                std::transform(line.begin(), line.end(), line.begin(), [](char c) {
                    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
                });
            }
            book_.lines.push_back(std::move(line));
            rest.remove_prefix(end);
            rest.remove_prefix(std::min(rest.find_first_not_of(' '), rest.size()));
        }
        line_.clear();
    }

    void Blank()
    {
        if (!book_.lines.empty() && !book_.lines.back().empty()) {
            book_.lines.emplace_back();
        }
    }

    Handbook book_;
    std::string line_;
    int silent_ = 0;
    bool heading_ = false;
};

}  // namespace

std::size_t Handbook::ChapterAt(std::string_view mark) const
{
    const auto found = chapters.find(mark);
    return found == chapters.end() ? 0 : found->second;
}

Handbook ReadHandbook(std::string_view html)
{
    return Typesetter().Set(html);
}

}  // namespace office
