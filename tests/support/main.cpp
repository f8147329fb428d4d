#define DOCTEST_CONFIG_IMPLEMENT_WITH_MAIN
#include <doctest/doctest.h>

#include <algorithm>
#include <string>

namespace {

// What became of each case, one line a thing and at once, so that whoever reads along knows which
// case a program that ends or hangs was at:
//   start    the case's sentence
//   fault    what did not hold
//   failed   the case's sentence and its milliseconds, or passed
class Verdicts final : public doctest::IReporter {
  public:
    explicit Verdicts(const doctest::ContextOptions& options) : out_(*options.cout) {}

    void test_case_start(const doctest::TestCaseData& data) override {
        name_ = data.m_name;
        Tell("start", name_);
    }
    void test_case_end(const doctest::CurrentTestCaseStats& stats) override {
        const bool passed = stats.failure_flags == doctest::TestCaseFailureReason::None;
        Tell(passed ? "passed" : "failed", name_, std::to_string(stats.seconds * 1000));
    }
    void test_case_exception(const doctest::TestCaseException& exception) override {
        Tell("fault", std::string("exception: ") + exception.error_string.c_str());
    }
    void log_assert(const doctest::AssertData& data) override {
        if (!data.m_failed) return;
        Tell("fault", Place(data.m_file, data.m_line) + data.m_expr + " | " +
                          (data.m_threw ? data.m_exception : data.m_decomp).c_str());
    }
    void log_message(const doctest::MessageData& data) override {
        Tell("fault", Place(data.m_file, data.m_line) + data.m_string.c_str());
    }
    void report_query(const doctest::QueryData&) override {}
    void test_run_start() override {}
    void test_run_end(const doctest::TestRunStats&) override {}
    void test_case_reenter(const doctest::TestCaseData&) override {}
    void subcase_start(const doctest::SubcaseSignature&) override {}
    void subcase_end() override {}
    void test_case_skipped(const doctest::TestCaseData&) override {}

  private:
    // Without the folders above the suites.
    static std::string Place(const std::string& file, int line) {
        const auto suites = file.rfind("/tests/");
        return (suites == std::string::npos ? file : file.substr(suites + 7)) + ':' +
               std::to_string(line) + ": ";
    }
    void Tell(const char* what, std::string text, const std::string& more = "") {
        std::replace_if(
            text.begin(), text.end(), [](char c) { return c == '\n' || c == '\r' || c == '\t'; },
            ' ');
        out_ << what << '\t' << text << '\t' << more << std::endl;
    }

    std::ostream& out_;
    std::string name_;
};

REGISTER_REPORTER("verdicts", 0, Verdicts);

}  // namespace
