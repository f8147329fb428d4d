#include <algorithm>

#include "tweaks/catalogue.h"
#include "tweaks/pagefixture.h"
#include "tweaks/reference.h"

namespace tweak_tests {

std::vector<Oddity> Oddities() {
    std::vector<Oddity> oddities;
    for (const auto& row : golden::RowsOf(FileText("tests/golden/oddities.tsv"), 3)) {
        oddities.push_back({row[0], row[1], row[2]});
    }
    return oddities;
}

namespace {

std::string Trimmed(const std::string& text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string::npos) return "";
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

}  // namespace

std::string Replaced(std::string text, std::string_view old, std::string_view by) {
    for (std::size_t at = 0; (at = text.find(old, at)) != std::string::npos; at += by.size()) {
        text.replace(at, old.size(), by);
    }
    return text;
}

std::string AsShown(const std::string& caption) {
    return Trimmed(Replaced(caption, "&&", "&"));
}

namespace {

// In the order of the window.
ReferencePage PageOf(OnePage::AddPage add, const std::vector<Fact>& facts,
                     const std::string& name) {
    ReferencePage page{name, {}};
    const OnePage one(add);
    std::string group;
    for (const auto& control : one.form.Controls()) {
        if (control->Kind() == toolkit::ControlKind::Frame) group = AsShown(control->Caption());
        ReferenceEntry entry{
            control->Name(), AsShown(CaptionOf(one.form, control->Name())), group, {}};
        std::copy_if(facts.begin(), facts.end(), std::back_inserter(entry.facts),
                     [&](const Fact& fact) { return fact.control == entry.control; });
        // The one slider is an option by itself; that of the start menu only leads its box.
        const bool actsAtOnce = entry.control.starts_with("chk") || entry.control == "Level";
        if (!entry.facts.empty() || actsAtOnce) page.entries.push_back(entry);
    }
    return page;
}

}  // namespace

std::vector<ReferencePage> ReferencePages() {
    Options options;
    const std::vector<Fact> facts = FactsOfProgram(options.form);
    constexpr OnePage::AddPage adds[] = {tweaks::AddSystemPage, tweaks::AddTweaksPage,
                                         tweaks::AddPathsPage, tweaks::AddSecurityPage,
                                         tweaks::AddNetworkPage};
    std::vector<ReferencePage> pages;
    for (std::size_t i = 0; i < std::size(adds); ++i) {
        pages.push_back(PageOf(adds[i], facts, Trimmed(std::string(tweaks::Catalogue()[i].tab))));
    }
    return pages;
}

AbsentEffect EffectOf(const ReferenceEntry& entry, bool keysThere) {
    Options options;
    auto& keys = options.machine.registry;
    for (const Fact& fact : entry.facts) {
        if (keysThere) keys.MakeKey(fact.Root(), fact.key);
    }
    registry::Registry registry(keys, options.machine.locale);
    const tweaks::PassContext pass{options.form, registry, options.machine.locale.Signs(),
                                   options.machine.services};
    const tweaks::Option& option = *tweaks::FindOption(entry.control);
    tweaks::ReadOption(pass, option);
    tweaks::WriteOption(pass, option);
    AbsentEffect effect;
    effect.on = option.IsCheckBox() && options.State(entry.control) == 1;
    for (const Fact& fact : entry.facts) {
        if (keys.Value(fact.Root(), fact.key, fact.value)) effect.writes.push_back(&fact);
        if (keysThere && !keys.HasKey(fact.Root(), fact.key)) effect.deletes.push_back(&fact);
    }
    for (const auto& message : options.machine.messages.Shown()) {
        effect.complaints.push_back(message.text);
    }
    return effect;
}

}  // namespace tweak_tests
