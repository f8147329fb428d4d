#include "endtoend/optiontablewords.h"

#include "endtoend/workplace.h"
#include "support/golden.h"

namespace endtoend {
namespace {

bool TakeOff(std::string& words, const std::string& tail) {
    if (!words.ends_with(tail)) return false;
    words.erase(words.size() - tail.size());
    return true;
}

bool TakeFront(std::string& words, const std::string& head) {
    if (!words.starts_with(head)) return false;
    words.erase(0, head.size());
    return true;
}

// What follows the last `mark`, which goes with it; empty without the mark.
std::string TakeBehind(std::string& words, const std::string& mark) {
    const std::size_t at = words.rfind(mark);
    if (at == std::string::npos) return "";
    const std::string behind = words.substr(at + mark.size());
    words.erase(at);
    return behind;
}

// The text without the quotation marks around it.
std::string Quoted(const std::string& words) {
    if (words.size() < 2 || words.front() != '"' || words.back() != '"') {
        throw Failed("no quoted text: " + words);
    }
    return words.substr(1, words.size() - 2);
}

std::int32_t Number(const std::string& words) {
    std::size_t end = 0;
    const long number = std::stol(words, &end);
    if (end != words.size()) throw Failed("no number: " + words);
    return static_cast<std::int32_t>(number);
}

// `= 1`, `>= 1`, `lower = "yes"` and so on.
void ParseComparison(const std::string& words, ReadWords& read) {
    using enum ReadWords::Asked;
    std::string rest = words;
    if (TakeFront(rest, ">= ")) {
        read.asked = AtLeastNumber;
        read.number = Number(rest);
        return;
    }
    read.asked = EqualsText;
    if (TakeFront(rest, "lower ")) read.asked = LowerEqualsText;
    if (TakeFront(rest, "upper ")) read.asked = UpperEqualsText;
    if (!TakeFront(rest, "= ")) throw Failed("no such reading: " + words);
    if (rest.starts_with('"')) {
        read.text = Quoted(rest);
    } else {
        read.asked = EqualsNumber;
        read.number = Number(rest);
    }
}

ReadWords ParseRead(std::string words) {
    using enum ReadWords::Asked;
    ReadWords read;
    read.absent = TakeBehind(words, "; absent: ");
    read.elseClears = TakeBehind(words, ", else clears ");
    read.alsoInto = TakeBehind(words, ", also into ");
    read.offWhen = TakeFront(words, "off when ");
    if (words == "not read" || words == "overruled") return read;
    if (words.starts_with("the text")) {
        read.onlyWith = TakeBehind(words, " when ");
        if (words != "the text") throw Failed("no such reading: " + words);
        read.asked = TheText;
    } else if (words == "present") {
        read.asked = Present;
    } else if (words == "not empty") {
        read.asked = NotEmpty;
    } else {
        read.alsoPresent = TakeFront(words, "present and ");
        read.alsoEmpty = TakeFront(words, "\"\" or ");
        ParseComparison(words, read);
    }
    return read;
}

// `if numeric`, `if cboX is numeric`, each with or without `, else "…"`.
void ParseNumericTest(std::string& words, const std::string& control, WriteWords& write) {
    std::string complaint = TakeBehind(words, ", else ");
    if (!complaint.empty()) write.complaint = Quoted(complaint);
    if (TakeOff(words, " if numeric")) {
        write.numericControl = control;
    } else if (TakeOff(words, " is numeric")) {
        write.numericControl = TakeBehind(words, " if ");
    }
}

void ParseGuard(std::string& words, WriteWords& write) {
    using enum WriteWords::Guard;
    if (TakeOff(words, " if key present")) write.guard = KeyPresent;
    if (TakeOff(words, " if key absent")) write.guard = KeyAbsent;
    if (TakeOff(words, " if value present")) write.guard = ValuePresent;
    if (TakeOff(words, " if only this key present")) write.guard = OnlyThisKeyPresent;
}

void ParseAction(std::string words, const std::string& control, WriteWords& write) {
    using enum WriteWords::Action;
    const std::string all = words;
    const auto named = [&] { return words == "the box" ? control : words; };
    if (TakeFront(words, "dword ")) {
        write.action = Dword;
        write.number = Number(words);
    } else if (TakeFront(words, "text of ")) {
        write.action = TextOf;
        write.text = named();
    } else if (TakeFront(words, "number of ")) {
        write.action = NumberOf;
        write.text = named();
    } else if (TakeFront(words, "text ")) {
        write.action = Text;
        write.text = Quoted(words);
    } else if (TakeFront(words, "binary ")) {
        write.action = Binary;
        write.text = Quoted(words);
    } else if (words == "delete value") {
        write.action = DeleteValue;
    } else if (words == "delete key") {
        write.action = DeleteKey;
    } else if (words != "nothing") {
        throw Failed("no such side: " + all);
    }
}

WriteWords ParseWrite(std::string words, const std::string& control) {
    WriteWords write;
    const std::string with = TakeBehind(words, " with chk");
    if (!with.empty()) write.decidedBy = "chk" + with;
    ParseNumericTest(words, control, write);
    ParseGuard(words, write);
    ParseAction(words, control, write);
    return write;
}

Fact Parsed(const golden::CatalogueLine& line) {
    return {line.page,
            line.control,
            line.caption,
            {line.root, line.key, line.value},
            ParseRead(line.read),
            ParseWrite(line.on, line.control),
            ParseWrite(line.off, line.control)};
}

std::vector<std::string> Order(const std::string& pass) {
    return golden::PassOrder(ReadFile(OwnFolder() + "\\passorder.txt"), pass);
}

}  // namespace

const std::vector<Fact>& Facts() {
    static const std::vector<Fact> facts = [] {
        std::vector<Fact> parsed;
        for (const auto& line : golden::CatalogueLines(ReadFile(OwnFolder() + "\\catalogue.tsv"))) {
            parsed.push_back(Parsed(line));
        }
        return parsed;
    }();
    return facts;
}

std::vector<Fact> FactsOf(const std::string& control) {
    std::vector<Fact> facts = Facts();
    std::erase_if(facts, [&](const Fact& fact) { return fact.control != control; });
    return facts;
}

const std::vector<std::string>& ReadOrder() {
    static const std::vector<std::string> names = Order("read");
    return names;
}

const std::vector<std::string>& WriteOrder() {
    static const std::vector<std::string> names = Order("write");
    return names;
}

}  // namespace endtoend
