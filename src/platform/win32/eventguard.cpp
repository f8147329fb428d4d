#include "platform/win32/eventguard.h"

#include <exception>
#include <new>
#include <string>

#include "platform/messages.h"
#include "runtime/failure.h"
#include "runtime/programtitle.h"

namespace platform::win32 {
namespace {

void Tell(platform::Messages& messages, int number, const std::string& description) {
    messages.Show("Laufzeitfehler '" + std::to_string(number) + "':\r\n\r\n" + description,
                  message::Critical, runtime::ProgramTitle);
}

}  // namespace

void GuardEvent(platform::Messages& messages, const std::function<void()>& event) {
    try {
        event();
    } catch (const runtime::Failure& failure) {
        Tell(messages, failure.number, failure.description);
    } catch (const std::bad_alloc&) {
        Tell(messages, runtime::OutOfMemory, runtime::DescriptionOf(runtime::OutOfMemory));
    } catch (const std::exception& mistake) {
        Tell(messages, runtime::InvalidProcedureCall, mistake.what());
    }
}

}  // namespace platform::win32
