#include "app/errorlog.h"

#include <array>

#include "platform/clock.h"
#include "platform/files.h"
#include "platform/locale.h"
#include "platform/messages.h"
#include "platform/program.h"
#include "runtime/programtitle.h"

namespace app {
namespace {

constexpr int CommonDialogCancelled = 32755;
constexpr char LineEnd[] = "\r\n";

// Asterisks under each record.
constexpr std::size_t RuleLength = 51;

std::string Lines(int count) {
    std::string ends;
    while (count-- > 0) ends += LineEnd;
    return ends;
}

}  // namespace

void ErrorLog::LogError(int number, std::string_view description, std::string_view source,
                        std::string_view procedure) const {
    if (number == CommonDialogCancelled) return;
    WriteRecord(number, description, source, procedure);
    runtime::Skip([&] {
        std::string text(description);
        text += Lines(2) + "Quelle: " + std::string(source);
        text += Lines(1) + "Prozedur: " + std::string(procedure);
        machine_.messages.Show(text, platform::message::Critical,
                               "Fehler " + std::to_string(number));
    });
}

void ErrorLog::WriteRecord(int number, std::string_view description, std::string_view source,
                           std::string_view procedure) const {
    const std::string title(runtime::ProgramTitle);
    const platform::LocalTime now = machine_.clock.Now();

    // Printing adds one more line end to each item, so every item is followed by an empty line.
    const std::array<std::string, 8> items = {
        title + " " + version_ + " Programm Error Log" + Lines(1),
        "Please send this log file to support@quillmore.example. Updates are available at "
        "www.quillmore.example." +
            Lines(2),
        "Date / Time: " + machine_.locale.ShortDate(now) + " / " + machine_.locale.LongTime(now) +
            Lines(1),
        "Description: " + std::string(description) + Lines(1),
        "Source: " + std::string(source) + Lines(1),
        "Number: " + std::to_string(number) + Lines(1),
        "Procedure: " + std::string(procedure) + Lines(2),
        std::string(RuleLength, '*') + Lines(3),
    };

    platform::Files::Handle file = 0;
    runtime::Skip([&] {
        file = machine_.files.OpenForAppend(machine_.program.Directory() + "\\" + title + ".log");
    });
    for (const std::string& item : items) {
        runtime::Skip([&] { machine_.files.Write(file, machine_.locale.ToAnsi(item + Lines(1))); });
    }
    runtime::Skip([&] { machine_.files.Close(file); });
}

void ErrorLog::Report(std::string_view procedure, const std::function<void()>& body) const {
    try {
        body();
    } catch (const runtime::Failure& failure) {
        LogError(failure.number, failure.description, failure.source, procedure);
    }
}

}  // namespace app
