#include "app/errorlog.h"

#include <doctest/doctest.h>

#include <vector>

#include "platform/simulated/machine.h"
#include "runtime/encoding.h"

using app::ErrorLog;
using platform::simulated::Machine;

namespace {

constexpr char Path[] = "C:\\Programme\\Quillmore\\Quillmore.log";

const std::string Record =
    "Quillmore v2.38 Programm Error Log\r\n\r\n"
    "Please send this log file to support@quillmore.example. Updates are available at "
    "www.quillmore.example.\r\n\r\n\r\n"
    "Date / Time: 05.03.2004 / 14:07:09\r\n\r\n"
    "Description: Überlauf\r\n\r\n"
    "Source: Quillmore\r\n\r\n"
    "Number: 6\r\n\r\n"
    "Procedure: WriteRegistry\r\n\r\n\r\n"
    "***************************************************\r\n\r\n\r\n\r\n";

struct Log {
    Machine machine;
    std::string version = "v2.38";
    ErrorLog log{machine.services, version};

    std::string Content() {
        return runtime::FromWestern(machine.files.Content(Path).value_or("none"));
    }
};

}  // namespace

TEST_CASE_FIXTURE(Log, "a failure leaves one record of eight items, each followed by its blanks") {
    log.LogError(6, "Überlauf", "Quillmore", "WriteRegistry");
    CHECK(Content() == Record);
}

TEST_CASE_FIXTURE(Log, "the record is written in the ANSI code page") {
    log.LogError(6, "Überlauf", "Quillmore", "WriteRegistry");
    CHECK(machine.files.Content(Path)->find("Description: \xDC"
                                            "berlauf") != std::string::npos);
}

TEST_CASE_FIXTURE(Log, "two failures in a row give two complete records") {
    log.LogError(6, "Überlauf", "Quillmore", "WriteRegistry");
    log.LogError(6, "Überlauf", "Quillmore", "WriteRegistry");
    CHECK(Content() == Record + Record);
}

TEST_CASE_FIXTURE(Log, "an existing log keeps its content") {
    machine.files.Put(Path, "earlier\r\n");
    log.LogError(6, "Überlauf", "Quillmore", "WriteRegistry");
    CHECK(Content() == "earlier\r\n" + Record);
}

TEST_CASE_FIXTURE(Log, "a description with line ends is printed as it stands") {
    log.LogError(13, "eins\r\nzwei", "Quillmore", "ReadRegistry");
    CHECK(Content().find("Description: eins\r\nzwei\r\n\r\nSource: ") != std::string::npos);
}

TEST_CASE_FIXTURE(Log, "the message tells number, description, source and procedure") {
    log.LogError(6, "Überlauf", "Quillmore", "WriteRegistry");
    REQUIRE(machine.messages.Shown().size() == 1);
    CHECK(machine.messages.Shown()[0] ==
          platform::simulated::ShownMessage{
              "Fehler 6", "Überlauf\r\n\r\nQuelle: Quillmore\r\nProzedur: WriteRegistry", 16});
}

TEST_CASE_FIXTURE(Log, "the record stands before the message comes up") {
    machine.messages.WhileOpen("Fehler 6", [&] { CHECK(Content() == Record); });
    log.LogError(6, "Überlauf", "Quillmore", "WriteRegistry");
    CHECK(machine.messages.Shown().size() == 1);
}

TEST_CASE_FIXTURE(Log, "a failure of number 32755 leaves file and screen untouched") {
    log.LogError(32755, "Abbrechen", "Dialog", "LoadExtern");
    CHECK_FALSE(machine.files.Content(Path).has_value());
    CHECK(machine.messages.Shown().empty());
}

TEST_CASE_FIXTURE(Log, "a read-only program folder loses the record but never the message") {
    machine.files.MakeReadOnly("C:\\Programme\\Quillmore");
    log.LogError(6, "Überlauf", "Quillmore", "WriteRegistry");
    CHECK_FALSE(machine.files.Content(Path).has_value());
    CHECK(machine.messages.Shown().size() == 1);
}

TEST_CASE_FIXTURE(Log, "the log file is closed again") {
    log.LogError(6, "Überlauf", "Quillmore", "WriteRegistry");
    CHECK(machine.files.OpenHandles() == 0);
}

TEST_CASE("any call that fails inside the report costs its own part and never reaches the caller") {
    constexpr int OpenCall = 1;
    constexpr int Items = 8;
    constexpr int MessageCall = 11;
    // Where each item begins, and the end.
    std::vector<std::size_t> begins{0};
    for (const char* item : {"Please", "Date", "Descr", "Source", "Number", "Procedure", "****"}) {
        begins.push_back(Record.find(item));
    }
    begins.push_back(Record.size());
    for (int n = 1; n <= 12; ++n) {
        CAPTURE(n);
        Log failing;
        failing.machine.faults.FailNth(n, runtime::PermissionDenied);
        CHECK_NOTHROW(failing.log.LogError(6, "Überlauf", "Quillmore", "WriteRegistry"));
        const int lost = n - OpenCall - 1;
        std::string expected = n == OpenCall ? "none" : Record;
        if (lost >= 0 && lost < Items) {
            const auto at = static_cast<std::size_t>(lost);
            expected.erase(begins[at], begins[at + 1] - begins[at]);
        }
        CHECK(failing.Content() == expected);
        CHECK(failing.machine.messages.Shown().size() == (n == MessageCall ? 0 : 1));
    }
}

TEST_CASE_FIXTURE(Log, "one item that cannot be written does not keep the others from the file") {
    machine.faults.FailNth(3, runtime::PermissionDenied);
    log.LogError(6, "Überlauf", "Quillmore", "WriteRegistry");
    CHECK(Content().size() < Record.size());
    CHECK(Content().find("Procedure: WriteRegistry") != std::string::npos);
    CHECK(machine.messages.Shown().size() == 1);
}

TEST_CASE_FIXTURE(Log, "a reported body ends at its failure and is logged under its procedure") {
    bool reached = false;
    log.Report("Form_QueryUnload", [&] {
        throw runtime::Failure(runtime::TypeMismatch);
        reached = true;
    });
    CHECK_FALSE(reached);
    CHECK(Content().find("Number: 13\r\n\r\nProcedure: Form_QueryUnload\r\n") != std::string::npos);
}

TEST_CASE_FIXTURE(Log, "a body without failure reports nothing") {
    log.Report("ReadRegistry", [] {});
    CHECK(machine.messages.Shown().empty());
}
