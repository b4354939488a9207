#include "office/settings_sheet.h"

#include <algorithm>
#include <array>
#include <string>

namespace office {

namespace {

constexpr std::array<std::string_view, 3> kPauses{"Full", "Short", "By click"};  // by ui::Pauses

// A press of a row's button, and what the button then says. By screens::SettingRow.
struct Choice {
    void (*step)(Settings&);
    std::string_view (*word)(const Settings&);
};
std::string_view OnOff(bool on)
{
    return on ? "On" : "Off";
}
constexpr std::array<Choice, screens::kSettingRows> kChoices{{
    {[](Settings& s) { s.mute = !s.mute; }, [](const Settings& s) { return OnOff(s.mute); }},
    {[](Settings& s) { s.fullScreen = !s.fullScreen; },
     [](const Settings& s) { return std::string_view(s.fullScreen ? "Full screen" : "Window"); }},
    {[](Settings& s) {
         s.pauses = static_cast<ui::Pauses>((static_cast<std::size_t>(s.pauses) + 1) % kPauses.size());
     },
     [](const Settings& s) { return kPauses.at(static_cast<std::size_t>(s.pauses)); }},
    {[](Settings& s) { s.narration = !s.narration; }, [](const Settings& s) { return OnOff(s.narration); }},
    {[](Settings& s) { s.hints = !s.hints; }, [](const Settings& s) { return OnOff(s.hints); }},
}};

}  // namespace

SettingsSheet::SettingsSheet(screens::FrmSettings& form, media::Sound& sound) : form_(form), sound_(sound)
{
    const auto louder = [this](int by) {
        Change([by](Settings& s) { s.volume = std::clamp(s.volume + by, 0, kLoudest); });
        sound_.SoundClick();
    };
    form.cmdLess.onClick = [louder] { louder(-1); };
    form.cmdMore.onClick = [louder] { louder(1); };
    form.cmdValue.OnClick([this](int row) { Step(row); });
    form.cmdAsDelivered.onClick = [this] {
        Change([this](Settings& s) {
            const Settings before = s;
            s = delivered;
            s.window = before.window;
            s.voiceOffered = before.voiceOffered;
        });
        sound_.SoundClick();
    };
    form.cmdDone.onClick = [this] {
        sound_.SoundClick();
        form_.Hide();
    };
}

void SettingsSheet::Open()
{
    Print();
    form_.Show();
}

void SettingsSheet::Take(const Settings& settings)
{
    now_ = settings;
    Print();
    onChanged(now_);
}

void SettingsSheet::Change(const std::function<void(Settings&)>& change)
{
    change(now_);
    Print();
    onChanged(now_);
    if (onKept) {
        onKept(now_);
    }
}

void SettingsSheet::Step(int row)
{
    Change(kChoices.at(static_cast<std::size_t>(row)).step);
    sound_.SoundClick();
}

void SettingsSheet::Print()
{
    form_.lblVolume.SetText(std::to_string(now_.volume));
    for (int row = 0; row < screens::kSettingRows; ++row) {
        form_.cmdValue[row].SetText(kChoices.at(static_cast<std::size_t>(row)).word(now_));
    }
}

}  // namespace office
