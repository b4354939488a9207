#include "ui/toolkit/control.h"

namespace ui {

namespace {

// Focus rings, shadows and the grounds of opaque labels reach this far beyond a control's place.
constexpr int kPaintMargin = 10;

bool AlwaysTabStop(Control::Kind kind)
{
    return kind == Control::Kind::CommandButton || kind == Control::Kind::OptionButton ||
           kind == Control::Kind::TextBox;
}

}  // namespace

Control::Control(Holder& holder, Kind kind, std::string_view name, const Rect& rect, std::string_view text,
                 const TextStyle& style, const Extras& extras)
    : holder_(holder), name_(name), kind_(kind), style_(&style), row_(extras.row)
{
    design_.rect = rect;
    design_.text = text;
    design_.picture = extras.picture;
    design_.fore = extras.fore.value_or(style.fore);
    design_.back = extras.back.value_or(Color{});
    design_.opaque = extras.back.has_value();
    design_.visible = extras.visible;
    design_.enabled = extras.enabled;
    design_.tabStop = extras.tabStop || AlwaysTabStop(kind);
    design_.mark = extras.mark;
    design_.twips = extras.twips;
    state_ = design_;
    holder_.Add(*this);
}

void Control::MarkDirty() const
{
    // A message's band and the dark around it reach across the screen.
    const bool everywhere = style_->ornament == Ornament::Message;
    holder_.MarkDirty(everywhere ? kSpace : Union(state_.rect, row_).Grown(kPaintMargin));
}

template <class T> void Control::Change(T& field, const T& value)
{
    if (field != value) {
        field = value;
        MarkDirty();
    }
}

void Control::SetText(std::string_view text)
{
    if (state_.text != text) {
        state_.text = text;
        state_.folded = false;
        MarkDirty();
    }
}

void Control::SetPicture(std::string_view file)
{
    if (state_.picture != file) {
        state_.picture = file;
        MarkDirty();
    }
}

void Control::SetRect(const Rect& rect)
{
    if (state_.rect == rect) {
        return;
    }
    MarkDirty();  // where it was ...
    state_.rect = rect;
    MarkDirty();  // ... and where it is
}

void Control::SetFolded(bool folded)
{
    Change(state_.folded, folded);
}

void Control::SetVisible(bool visible)
{
    Change(state_.visible, visible);
}

void Control::SetEnabled(bool enabled)
{
    Change(state_.enabled, enabled);
}

void Control::SetFore(Color color)
{
    Change(state_.fore, color);
}

void Control::SetBack(Color color)
{
    Change(state_.back, color);
}

void Control::SetOpaque(bool opaque)
{
    Change(state_.opaque, opaque);
}

void Control::SetChosen(bool chosen)
{
    Change(state_.chosen, chosen);
}

void Control::SetTabStop(bool tabStop)
{
    Change(state_.tabStop, tabStop);
}

void Control::SetMark(Mark mark)
{
    Change(state_.mark, mark);
}

void Control::Reset()
{
    MarkDirty();
    state_ = design_;
    MarkDirty();
}

TextBox::TextBox(Holder& holder, std::string_view name, const Rect& rect, std::string_view text,
                 const TextStyle& style, const Extras& extras)
    : Control(holder, Kind::TextBox, name, rect, text, style, extras), edit_(extras.longest)
{
    edit_.SetText(text);
}

void TextBox::SetText(std::string_view text)
{
    edit_.SetText(text);
    Control::SetText(edit_.Text());
}

void TextBox::Reset()
{
    Control::Reset();
    edit_.SetText(Text());
}

void TextBox::Change(const std::function<void(TextEdit&)>& change)
{
    const TextEdit before = edit_;
    change(edit_);
    if (edit_ != before) {
        Mutable().text = edit_.Text();
        MarkDirty();
    }
}

}  // namespace ui
