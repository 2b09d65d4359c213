// The host on the screen: windows for forms, and the toolkit's own dialogs for questions.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include <QElapsedTimer>
#include <QObject>
#include <QPoint>

#include "platform/Host.h"

class QEventLoop;
class QPrinter;

namespace quillmetra {

class FormWindow;
class WindowPlaces;
class HelpWindow;

class DesktopHost : public QObject, public Host {
public:
    DesktopHost();
    ~DesktopHost() override;

    Answer ShowMessageBox(const MessageBox& box) override;
    std::optional<std::string> InputBox(const std::string& prompt, const std::string& title) override;
    std::optional<std::string> FileDialog(const FileQuestion& question) override;
    std::optional<PrinterChoice> PrinterDialog(const PrinterChoice& preset) override;
    std::optional<FontChoice> FontDialog(const FontChoice& preset) override;
    std::optional<unsigned> ColourDialog(unsigned preset, const std::string& title) override;
    void PageSetupDialog() override;
    std::unique_ptr<Paper> OpenPaper(const PrintJob& job) override;
    void ShowHelp(int topic) override;
    void CopyText(const std::string& text) override;
    std::string CopiedText() override;
    void SetBusyPointer(bool busy) override;
    bool Yield() override;
    void ServeUser() override;

    void FormShown(Form& form) override;
    void RunModal(Form& form) override;
    void FormHidden(Form& form) override;
    void FormGone(Form& form) override;
    void FormChanged(Form& form) override;
    void ControlChanged(Control& control, Aspect aspect) override;
    void FocusMoved(Form& form) override;
    void ProcessEnded() override;

    // Windows open where they stood in the last run, from now on. Until then each opens over the one before.
    void RememberPlaces(const std::string& suitePath);

    // Null for a form that was not shown yet.
    FormWindow* WindowOf(const Form& form) const;

protected:
    // While a long act breathes, the user can press Escape or the form's cancel button and nothing else.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // Nothing of the suite is locked: all that it does comes by the one thread of the toolkit.
    bool IsOwnThread() const;
    FormWindow& Window(Form& form);
    void PutInPlace(FormWindow& window);
    QPrinter& ThePrinter();

    std::unordered_map<const Form*, FormWindow*> windows_;
    std::unordered_map<const Form*, QEventLoop*> loops_;  // of the modal forms
    std::unique_ptr<WindowPlaces> places_;                // null while places are not remembered
    std::unique_ptr<HelpWindow> help_;                    // null until it is asked for
    std::optional<QPoint> lastCentre_;                    // of the window that was hidden last
    std::unique_ptr<QPrinter> printer_;                   // as its dialogs have set it up; made when needed
    bool yielding_ = false;
    bool escaped_ = false;
    QElapsedTimer served_;  // since the user was last let in
};

}  // namespace quillmetra
