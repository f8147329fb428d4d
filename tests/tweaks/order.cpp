#include "tweaks/order.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <sstream>

#include "tweaks/pagefixture.h"

using namespace tweak_tests;

namespace {

using Names = std::vector<std::string>;

// The names below the given heading of tests/golden/passorder.txt, up to the empty line.
Names GoldenOrder(const std::string& pass) {
    std::istringstream lines(FileText("tests/golden/passorder.txt"));
    std::string line;
    while (std::getline(lines, line) && line != pass) {
    }
    Names names;
    while (std::getline(lines, line) && !line.empty()) names.push_back(line);
    return names;
}

Names NamesOf(std::span<const std::string_view> order) {
    return {order.begin(), order.end()};
}

std::size_t PlaceOf(const Names& names, const std::string& name) {
    return static_cast<std::size_t>(std::find(names.begin(), names.end(), name) - names.begin());
}

}  // namespace

TEST_CASE("the read pass knows 99 names in the golden order") {
    CHECK(NamesOf(tweaks::ReadOrder()).size() == 99);
    CHECK(NamesOf(tweaks::ReadOrder()) == GoldenOrder("read"));
}

TEST_CASE("the write pass knows 98 names in the golden order") {
    CHECK(NamesOf(tweaks::WriteOrder()).size() == 98);
    CHECK(NamesOf(tweaks::WriteOrder()) == GoldenOrder("write"));
}

TEST_CASE("the logon message's box is read after its two texts and written before them") {
    const Names read = NamesOf(tweaks::ReadOrder());
    const Names write = NamesOf(tweaks::WriteOrder());
    const std::size_t at = PlaceOf(read, "txtWinLogOnT");
    CHECK(Names(read.begin() + at, read.begin() + at + 3) ==
          Names{"txtWinLogOnT", "txtWinLogOnC", "chkWinLogOn"});
    CHECK(Names(write.begin() + at, write.begin() + at + 3) ==
          Names{"chkWinLogOn", "txtWinLogOnT", "txtWinLogOnC"});
}

TEST_CASE("apart from five names the write pass follows the read pass") {
    Names read = NamesOf(tweaks::ReadOrder());
    Names write = NamesOf(tweaks::WriteOrder());
    CHECK(write.back() == "chkSHMediaDLL");
    std::erase(write, "chkSHMediaDLL");
    std::erase(write, "chkWinLogOn");
    std::erase(read, "chkWinLogOn");
    std::erase(read, "chkScriptDebugging");
    std::erase(read, "txtProductId");
    CHECK(read == write);
}

namespace {

// The value names of the calls, each when it first comes.
Names FirstQuestions(const Names& lines) {
    Names names;
    for (const std::string& line : lines) {
        const std::size_t first = line.find('"');
        const std::string name = line.substr(first + 1, line.find('"', first + 1) - first - 1);
        if (std::find(names.begin(), names.end(), name) == names.end()) names.push_back(name);
    }
    return names;
}

void PutEveryKey(Options& options) {
    for (std::string_view key :
         {MemoryKey, WinlogonKey, SystemKey, AgpKey,
          std::string_view("SYSTEM\\CurrentControlSet\\Control\\FileSystem\\CDFS"),
          std::string_view("SYSTEM\\CurrentControlSet\\Control\\Session Manager"
                           "\\Memory Management\\PrefetchParameters"),
          std::string_view("SYSTEM\\CurrentControlSet\\Control\\Class"
                           "\\{4D36E96A-E325-11CE-BFC1-08002BE10318}\\0000")}) {
        options.machine.registry.MakeKey(Service::LocalMachine, key);
    }
    options.machine.registry.MakeKey(Service::CurrentUser,
                                     "SOFTWARE\\Microsoft\\Dfrg\\BootOptimizeFunction");
    options.machine.registry.MakeKey(Service::CurrentUser, DesktopKey);
}

}  // namespace

TEST_CASE_FIXTURE(Options, "a read pass asks for the values in the order of the names") {
    PutEveryKey(*this);
    PutMachine(WinlogonKey, "AutoAdminLogon", TextValue("1"));
    machine.journal.Clear();
    passes.Read();
    CHECK(FirstQuestions(machine.journal.Calls("RegQueryValueExA")) ==
          Names{"DisablePagingExecutive",
                "LargeSystemCache",
                "Enable",
                "MenuShowDelay",
                "ProductName",
                "ProductId",
                "RegisteredOwner",
                "RegisteredOrganization",
                "CurrentVersion",
                "CurrentBuildNumber",
                "SecondLevelDataCache",
                "NtfsDisableLastAccessUpdate",
                "EnablePrefetcher",
                "Prefetch",
                "PrefetchTail",
                "NtfsMftZoneReservation",
                "IOPageLockLimit",
                "AutoAdminLogon",
                "DefaultUserName",
                "DefaultPassword",
                "DefaultDomainName",
                "EnableUDMA66",
                "LargePageMinimum",
                "EnableVia4x"});
}

TEST_CASE_FIXTURE(Options, "a write pass sets the values in the order of the names") {
    PutEveryKey(*this);
    passes.Read();
    for (const char* name : {"chkAutoLogin", "chkUltraDMA66", "chkFixAthlonPCIAGP"}) {
        form.Check(name).SetValue(1);
    }
    machine.journal.Clear();
    passes.Write();
    CHECK(FirstQuestions(machine.journal.Calls("RegSetValueExA")) ==
          Names{"DisablePagingExecutive",
                "LargeSystemCache",
                "Enable",
                "MenuShowDelay",
                "ProductName",
                "RegisteredOwner",
                "RegisteredOrganization",
                "CurrentVersion",
                "CurrentBuildNumber",
                "SecondLevelDataCache",
                "NtfsDisableLastAccessUpdate",
                "EnablePrefetcher",
                "CacheSize",
                "Prefetch",
                "PrefetchTail",
                "NtfsMftZoneReservation",
                "IOPageLockLimit",
                "AutoAdminLogon",
                "DefaultUserName",
                "DefaultPassword",
                "DefaultDomainName",
                "EnableUDMA66",
                "LargePageMinimum",
                "EnableVia4x"});
}
