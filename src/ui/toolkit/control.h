// The controls of a screen: label, command button, option button, text box, picture and filled shape.
//
//     struct FrmAbout : ui::Form {
//         ui::Label Label5{*this, "Label5", {400, 520, 180, 26}, "Click to continue", look::kCaption};
//     };
//     about.Label5.SetText("...");          // repainted only when the text really changed
//     about.Label5.onClick = [&] { ... };
//
// A control keeps two states: the design state it was written down with and the current one. Unloading a
// screen puts every control back to its design state. Places are pixels of the 800 x 600 picture space.
#pragma once

#include "ui/toolkit/geometry.h"
#include "ui/toolkit/holder.h"
#include "ui/toolkit/style.h"
#include "ui/toolkit/text_edit.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ui {

// What a control's row says beyond its name, place, text and style.
struct Extras {
    bool visible = true;
    bool enabled = true;
    bool tabStop = false;         // buttons, options and text boxes always are
    std::optional<Color> fore{};  // else the style's
    std::optional<Color> back{};  // given: the ground is opaque
    Mark mark = Mark::None;
    std::string_view picture{};         // a file below the program folder
    Rect row{};                         // with Ornament::Row: what lights up
    std::int64_t twips = 0;             // a bar's length in twips; 0 for all that is no bar
    std::size_t longest = kNameLength;  // of a text box: characters
};

class Control {
public:
    enum class Kind : std::uint8_t { Label, CommandButton, OptionButton, TextBox, Picture, Shape, Graph };

    // Everything about a control that can change.
    struct State {
        Rect rect{};
        std::string text{};
        std::string picture{};
        Color fore{};
        Color back{};
        bool opaque = false;
        bool visible = true;
        bool enabled = true;
        bool chosen = false;  // option buttons
        bool tabStop = false;
        bool folded = false;  // a message that has been read: one line under the menu
        Mark mark = Mark::None;
        std::int64_t twips = 0;  // 1/1440 inch: exact where the place is scaled to fit
    };

    Control(Holder& holder, Kind kind, std::string_view name, const Rect& rect, std::string_view text,
            const TextStyle& style, const Extras& extras);
    virtual ~Control() = default;
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    const std::string& Name() const { return name_; }  // an array's element as "Label5(4)"
    Kind GetKind() const { return kind_; }
    Form& GetForm() const { return holder_.GetForm(); }
    const TextStyle& Style() const { return *style_; }
    const Rect& Row() const { return row_; }
    const State& Now() const { return state_; }
    const Rect& Place() const { return state_.rect; }
    const std::string& Text() const { return state_.text; }

    virtual void SetText(std::string_view text);
    void SetPicture(std::string_view file);
    void SetRect(const Rect& rect);
    void SetVisible(bool visible);
    void SetEnabled(bool enabled);
    void SetFore(Color color);
    void SetBack(Color color);
    void SetOpaque(bool opaque);
    void SetChosen(bool chosen);
    void SetTabStop(bool tabStop);
    void SetMark(Mark mark);
    void SetFolded(bool folded);
    void SetTwips(std::int64_t twips) { state_.twips = twips; }

    bool Focusable() const { return state_.tabStop && state_.visible && state_.enabled; }
    virtual void Reset();  // back to the design state

    std::function<void()> onClick;
    std::function<void()> onHover;  // the pointer, or the focus, comes to it

protected:
    void MarkDirty() const;
    State& Mutable() { return state_; }

private:
    template <class T> void Change(T& field, const T& value);

    Holder& holder_;
    std::string name_;
    Kind kind_;
    const TextStyle* style_;
    Rect row_;
    State design_;
    State state_;
};

// The constructors differ in nothing but the kind; each row of a screen names one of these types.
template <Control::Kind kKind> class ControlOf : public Control {
public:
    ControlOf(Holder& holder, std::string_view name, const Rect& rect, std::string_view text,
              const TextStyle& style, const Extras& extras = {})
        : Control(holder, kKind, name, rect, text, style, extras)
    {}
};

using Label = ControlOf<Control::Kind::Label>;
using CommandButton = ControlOf<Control::Kind::CommandButton>;
using OptionButton = ControlOf<Control::Kind::OptionButton>;
using Picture = ControlOf<Control::Kind::Picture>;
using Shape = ControlOf<Control::Kind::Shape>;

// A one-line text box. Its text and its editor (caret, selection) always agree.
class TextBox : public Control {
public:
    TextBox(Holder& holder, std::string_view name, const Rect& rect, std::string_view text,
            const TextStyle& style, const Extras& extras = {});

    void SetText(std::string_view text) override;
    void Reset() override;

    const TextEdit& Edit() const { return edit_; }
    // Runs one change on the editor and takes its text over: box.Change([](TextEdit& e) { e.Insert("a"); }).
    void Change(const std::function<void(TextEdit&)>& change);

private:
    TextEdit edit_;
};

// One element of a control array.
struct ElementRow {
    int index = 0;
    Rect rect{};
    std::string_view text{};
    const TextStyle* style = nullptr;
    Extras extras{};
};

// Controls of one kind that share a name and are told apart by an index: lblPER(0..49).
// Indices need not be dense; an index without an element is a programming error and throws.
template <class C> class ControlArray {
public:
    ControlArray(Holder& holder, std::string_view name, std::span<const ElementRow> rows);

    C& operator[](int index) { return *elements_.at(static_cast<std::size_t>(index)); }
    const C& operator[](int index) const { return *elements_.at(static_cast<std::size_t>(index)); }
    bool Has(int index) const
    {
        return index >= 0 && static_cast<std::size_t>(index) < elements_.size() &&
               elements_[static_cast<std::size_t>(index)] != nullptr;
    }
    int End() const { return static_cast<int>(elements_.size()); }  // one past the last index

    // Each element's click calls the handler with the element's index.
    void OnClick(const std::function<void(int)>& handler);
    void OnHover(const std::function<void(int)>& handler);

private:
    std::vector<std::unique_ptr<C>> elements_;
};

template <class C>
ControlArray<C>::ControlArray(Holder& holder, std::string_view name, std::span<const ElementRow> rows)
{
    for (const ElementRow& row : rows) {
        const auto at = static_cast<std::size_t>(row.index);
        if (at >= elements_.size()) {
            elements_.resize(at + 1);
        }
        const std::string elementName = std::string(name) + "(" + std::to_string(row.index) + ")";
        elements_[at] = std::make_unique<C>(holder, elementName, row.rect, row.text, *row.style, row.extras);
    }
}

template <class C> void ControlArray<C>::OnClick(const std::function<void(int)>& handler)
{
    for (int i = 0; i < End(); ++i) {
        if (Has(i)) {
            (*this)[i].onClick = [handler, i] { handler(i); };
        }
    }
}

template <class C> void ControlArray<C>::OnHover(const std::function<void(int)>& handler)
{
    for (int i = 0; i < End(); ++i) {
        if (Has(i)) {
            (*this)[i].onHover = [handler, i] { handler(i); };
        }
    }
}

}  // namespace ui
