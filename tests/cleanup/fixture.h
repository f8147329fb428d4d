#pragma once

#include <functional>
#include <string>
#include <vector>

#include "cleanup/tempfiles.h"
#include "platform/messages.h"
#include "platform/simulated/machine.h"
#include "runtime/failure.h"
#include "support/failureof.h"
#include "toolkit/form.h"

namespace cleanup_test {

using Lines = std::vector<std::string>;

// The frame on a form, and a disk C: with a folder of Windows that is empty but for its Temp.
struct Fixture {
    platform::simulated::Machine machine;
    platform::simulated::Disk& disk = machine.disk;
    toolkit::Form form{machine.forms, "frmMain", "Quillmore", {}};
    cleanup::TempFiles tool{form, machine.services};
    cleanup::TempFilesFrame& frame = tool.Frame();
    toolkit::ListView& list = frame.lvwFiles;

    Fixture() {
        machine.systemFacts.tempPath = "C:\\UserTemp\\";
        disk.MakeFolder("C:\\WINDOWS\\Temp");
        form.Load();
        tool.Start();
        tool.ShowDriveSpace();
        machine.journal.Clear();
    }

    void Tick(toolkit::CheckBox& box) { box.SetValue(1); }
    void Search() { frame.cmdSearchTempFiles.Press(); }
    void Clean(int answer = platform::message::Yes) {
        machine.messages.Answer("Tempdateien löschen", answer);
        frame.cmdCleanTempFiles.Press();
    }

    platform::simulated::DiskNode& File(const std::string& path, std::uint32_t attributes = 32,
                                        const std::string& content = "x") {
        auto& node = disk.MakeFile(path, attributes);
        node.content = content;
        return node;
    }

    Lines Column(int column) const {
        Lines texts;
        for (int row = 0; row < list.Count(); ++row) texts.push_back(list.Text(row, column));
        return texts;
    }
    Lines Rows() const { return Column(cleanup::column::Path); }

    // What a search finds on drive C: with nothing ticked.
    Lines Found() {
        Search();
        return Rows();
    }
};

// A window of lblScannedFiles: what the label says each time that it is painted at once.
class PaintedLines final : public toolkit::ControlView {
  public:
    explicit PaintedLines(Fixture& on) : label_(on.frame.lblScannedFiles) { label_.SetView(this); }
    ~PaintedLines() override { label_.SetView(nullptr); }
    PaintedLines(const PaintedLines&) = delete;
    PaintedLines& operator=(const PaintedLines&) = delete;

    void PaintNow() override {
        lines.push_back(label_.Caption());
        if (whenPainted) whenPainted(lines.back());
    }
    void Refresh(toolkit::Aspect) override {}
    void Repaint() override {}
    bool PointerIsOver() const override { return false; }
    void TakeFocus() override {}
    void CaptureMouse() override {}
    void MoveFocus(bool) override {}

    Lines lines;
    std::function<void(const std::string&)> whenPainted;

  private:
    toolkit::Label& label_;
};

}  // namespace cleanup_test
