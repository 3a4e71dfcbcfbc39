#pragma once

#include <ctime>
#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "platform/ui/HostServices.h"

namespace Tevra {

/// Services that show nothing and remember everything, for tests and for programs that collect the
/// messages of a run.
class RecordingHost : public HostServices {
public:
    enum class Kind { Message, Question, Log };

    /// One box or log line, in the order they came; level and flag are those of a log line.
    struct Event {
        Kind kind = Kind::Message;
        std::wstring text;
        int level = 0;
        int flag = 0;
        bool operator==(const Event&) const = default;
    };

    std::vector<Event> events;
    /// The answers to the questions to come, the first one first; no when they run out.
    std::deque<bool> answers;
    /// The host's clock when set.
    std::optional<std::tm> clock;
    std::optional<std::wstring> listSeparator;
    std::wstring userName;

    void ShowMessage(const std::wstring& text) override { events.push_back({Kind::Message, text}); }

    bool AskYesNo(const std::wstring& text) override {
        events.push_back({Kind::Question, text});
        if (answers.empty()) {
            return false;
        }
        const bool yes = answers.front();
        answers.pop_front();
        return yes;
    }

    void Log(const std::wstring& text, int level, int flag) override {
        events.push_back({Kind::Log, text, level, flag});
    }

    std::wstring ListSeparator() const override {
        return listSeparator ? *listSeparator : HostServices::ListSeparator();
    }
    std::tm LocalTime() const override { return clock ? *clock : HostServices::LocalTime(); }
    std::wstring UserName() const override { return userName; }

    /// The texts of one kind, in order.
    std::vector<std::wstring> Texts(Kind kind) const {
        std::vector<std::wstring> texts;
        for (const Event& event : events) {
            if (event.kind == kind) {
                texts.push_back(event.text);
            }
        }
        return texts;
    }
    std::vector<std::wstring> Messages() const { return Texts(Kind::Message); }
};

}  // namespace Tevra
