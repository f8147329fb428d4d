#pragma once

#include <functional>
#include <string>
#include <vector>

#include "toolkit/form.h"

// What happened in a test, in order.
using Journal = std::vector<std::string>;

// A host without windows that notes what it is asked for.
class NotingHost : public toolkit::FormHost {
  public:
    void Open(toolkit::Form& form) override { journal.push_back("open " + form.Name()); }
    void RunModal(toolkit::Form& form) override {
        journal.push_back("modal " + form.Name());
        if (user) user(form);
    }
    void Close(toolkit::Form& form) override { journal.push_back("close " + form.Name()); }
    toolkit::Bounds WorkArea() const override { return {}; }
    std::vector<toolkit::Form*> OpenForms() const override { return {}; }

    Journal journal;
    // What the user does with a modal form.
    std::function<void(toolkit::Form&)> user;
};

// A form on which the tests put their controls.
class TestForm : public toolkit::Form {
  public:
    explicit TestForm(toolkit::FormHost& host) : Form(host, "frmTest", "Test", {0, 0, 1500, 750}) {}
};

// A control's view that notes what it is told to show.
class NotingView : public toolkit::ControlView {
  public:
    void Refresh(toolkit::Aspect what) override { shown.push_back(what); }
    void Repaint() override {}
    bool PointerIsOver() const override { return false; }
    void TakeFocus() override {}
    void CaptureMouse() override {}
    void MoveFocus(bool) override {}

    std::vector<toolkit::Aspect> shown;
};
