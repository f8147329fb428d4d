#pragma once

#include <exception>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace cmd {

// A file that could not be read or written.
class FileFailure : public std::exception {
  public:
    explicit FileFailure(std::string systemReason) : reason(std::move(systemReason)) {}
    const char* what() const noexcept override { return reason.c_str(); }

    // What the system says, a sentence for the user.
    std::string reason;
};

// What a console program has around it: its streams, the keyboard, and the files that it is told
// of. Texts are UTF-8, their lines end in "\n".
class Surroundings {
  public:
    virtual ~Surroundings() = default;

    // To the standard output and to the standard error output, in the console's code page; a
    // character that it lacks becomes a similar one or a question mark.
    virtual void Out(std::string_view text) = 0;
    virtual void Err(std::string_view text) = 0;
    // From now on both are UTF-8.
    virtual void UseUtf8() = 0;
    // Whether the standard output is a console, so that a user sees a question.
    virtual bool OutputIsSeen() const = 0;
    // A line of the standard input without its end; nothing at the end of the input.
    virtual std::optional<std::string> ReadLine() = 0;

    // These throw FileFailure. A file is on the disk, not only in a buffer, when it is written;
    // where there is a file or a folder of that name, it is refused.
    virtual std::string ReadFile(std::string_view path) = 0;
    virtual void WriteNewFile(std::string_view path, std::string_view bytes) = 0;

    // What the system says of an error of its own, such as 5, in the user's language: one sentence
    // without a line end. "Fehler 5" where it says nothing.
    virtual std::string SystemText(int error) const = 0;
};

}  // namespace cmd
