// Pages on a printer and in the preview.
#pragma once

#include <memory>
#include <vector>

#include <QPainter>
#include <QPrinter>

#include "platform/Printer.h"

namespace quillmetra {

// The paper of a printer, and of the file that a print dialog prints to.
class PrinterPaper : public Paper {
public:
    PrinterPaper(QPrinter& printer, const std::string& name);
    ~PrinterPaper() override;
    void Print(const PrintedPage& page) override;
    void Finish() override;

private:
    QPrinter& printer_;
    QPainter painter_;
};

// Collects the pages, and shows them when they are complete. The preview's own print button prints them.
class PreviewPaper : public Paper {
public:
    PreviewPaper(QPrinter& printer, std::string name) : printer_(printer), name_(std::move(name)) {}
    void Print(const PrintedPage& page) override { pages_.push_back(page); }
    void Finish() override;

private:
    QPrinter& printer_;
    std::string name_;
    std::vector<PrintedPage> pages_;
};

}  // namespace quillmetra
