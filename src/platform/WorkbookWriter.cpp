// See WorkbookWriter.h. The library keeps the rows of a sheet in a file of its own until the workbook is
// closed, so that one of any length needs the memory of one row.
#include "platform/WorkbookWriter.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <system_error>
#include <utility>

#include <xlsxwriter.h>

#include "platform/Clock.h"
#include "platform/NumberText.h"
#include "platform/SafeFiles.h"
#include "platform/TextFiles.h"
#include "platform/Utf8.h"

namespace quillmetra {

namespace {

namespace fs = std::filesystem;

constexpr double FirstWidth = 22, ColumnWidth = 14;  // in characters

RuntimeError Failure(const fs::path& file, const std::string& why) {
    return {321, SuitePath(file) + ": " + why};
}

RuntimeError Failure(const fs::path& file, lxw_error error) {
    switch (error) {
        case LXW_ERROR_ZIP_FILE_OPERATION:
        case LXW_ERROR_ZIP_FILE_ADD:
        case LXW_ERROR_ZIP_CLOSE: return Failure(file, "the workbook could not be written whole");
        case LXW_ERROR_MAX_STRING_LENGTH_EXCEEDED:
            return Failure(file, "a text is longer than the 32,767 letters of a cell");
        case LXW_ERROR_WORKSHEET_INDEX_OUT_OF_RANGE:
            return Failure(file, "these are more rows than a sheet has");
        default: return Failure(file, lxw_strerror(error));
    }
}

// Of the folder in which the library keeps the rows.
RuntimeError NoRoom() {
    std::error_code ignored;
    return Failure(fs::temp_directory_path(ignored), "there is no room for the rows of the workbook");
}

// The library takes a name in UTF-8 on every system.
std::string Utf8Name(const fs::path& file) {
    const std::u8string name = file.u8string();
    return {name.begin(), name.end()};
}

lxw_workbook* NewBook(const fs::path& file) {
    lxw_workbook_options options{};
    options.constant_memory = LXW_TRUE;
    options.use_zip64 = LXW_TRUE;
    lxw_workbook* const book = workbook_new_opt(Utf8Name(file).c_str(), &options);
    if (book == nullptr) throw Failure(file, "no memory for a workbook");
    return book;
}

bool IsDay(const std::string& iso) {
    // Days before March of 1900 have no number that all spreadsheets agree on.
    return iso >= "1900-03-01" && !DateText(iso).empty();
}

lxw_datetime DayOf(const std::string& iso) {
    const auto part = [&iso](std::size_t at, std::size_t length) {
        return static_cast<int>(Val(std::string_view(iso).substr(at, length)));
    };
    lxw_datetime day{};
    day.year = part(0, 4);
    day.month = part(5, 2);
    day.day = part(8, 2);
    return day;
}

// Control characters are the library's to write.
bool IsOfXml(std::string_view character) {
    if (!IsUtf8(character) || character == "\uFFFE" || character == "\uFFFF") return false;
    if (character.size() < 3) return true;
    const auto head = static_cast<unsigned>(static_cast<unsigned char>(character[0])) << 8U |
                      static_cast<unsigned char>(character[1]);
    const bool isSurrogate = head >= 0xEDA0 && head < 0xEE00;
    const bool isTooLong = head < 0xE0A0 || (head >= 0xF000 && head < 0xF090);
    return !isSurrogate && !isTooLong && head < 0xF490;
}

// Of a file of another program: XML would not be read that has them.
std::string WithoutForeignCharacters(std::string_view text) {
    std::string kept;
    for (std::size_t end = 0; end < text.size();) {
        const std::size_t start = end++;
        while (end < text.size() && !StartsCharacter(text[end])) ++end;
        const std::string_view character = text.substr(start, end - start);
        kept += IsOfXml(character) ? character : "\uFFFD";
    }
    return kept;
}

// "_x0041_" would be read as the character of that number.
std::string WithEscapes(std::string text) {
    constexpr std::string_view digits = "0123456789ABCDEFabcdef", underline = "_x005F";
    for (std::size_t at = 0; (at = text.find("_x", at)) != std::string::npos; ++at) {
        const std::string_view number = std::string_view(text).substr(at + 2);
        if (number.find_first_not_of(digits) != 4 || number[4] != '_') continue;
        text.insert(at, underline);
        at += underline.size();
    }
    return text;
}

}  // namespace

struct WorkbookWriter::Book {
    explicit Book(std::string_view suitePath)
        : Target(MachinePath(suitePath)), Beside(fs::path(Target) += ".quillmetra-new") {
        if (IsWriteProtected(Target)) throw WriteProtected(Target);
        std::error_code ignored;
        fs::create_directories(Target.parent_path(), ignored);
        if (!std::ofstream(Beside.File)) throw Failure(Target, "no file can be made there");
        File = NewBook(Beside.File);
        Head = workbook_add_format(File);
        format_set_bold(Head);
        format_set_text_wrap(Head);
        format_set_align(Head, LXW_ALIGN_VERTICAL_TOP);
        Date = workbook_add_format(File);
        format_set_num_format(Date, "yyyy-mm-dd");
    }
    ~Book() {
        if (File != nullptr) lxw_workbook_free(File);
    }
    Book(const Book&) = delete;
    Book& operator=(const Book&) = delete;

    void EndSheet();
    void Write(lxw_col_t column, const WorkbookCell& cell);
    void CheckRoom();

    const fs::path Target;
    const Scratch Beside;
    lxw_workbook* File = nullptr;
    lxw_worksheet* Sheet = nullptr;
    lxw_format* Head = nullptr;
    lxw_format* Date = nullptr;
    lxw_row_t Row = 0;
    lxw_col_t Columns = 0;
    lxw_row_t Heads = 0;
    std::uintmax_t LargestSheet = 0;  // bytes
};

// Whether all its rows could be kept shows at its end alone.
void WorkbookWriter::Book::EndSheet() {
    if (Sheet == nullptr) return;
    if (Columns > 0) {
        const auto last = static_cast<lxw_col_t>(Columns - 1);
        worksheet_set_column(Sheet, 0, 0, FirstWidth, nullptr);
        if (last > 0) worksheet_set_column(Sheet, 1, last, ColumnWidth, nullptr);
        if (Heads > 0) worksheet_autofilter(Sheet, Heads - 1, 0, std::max(Row, Heads + 1) - 1, last);
    }
    std::FILE* const rows = Sheet->optimize_tmpfile;
    if (rows == nullptr || std::fflush(rows) != 0 || std::ferror(rows) != 0) throw NoRoom();
    LargestSheet = std::max(LargestSheet, static_cast<std::uintmax_t>(std::max(std::ftell(rows), 0L)));
}

void WorkbookWriter::Book::Write(lxw_col_t column, const WorkbookCell& cell) {
    lxw_format* const format = Row < Heads ? Head : nullptr;
    lxw_error error = LXW_NO_ERROR;
    if (const auto* number = std::get_if<double>(&cell)) {
        error = worksheet_write_number(Sheet, Row, column, *number, format);
    } else if (const auto* text = std::get_if<std::string>(&cell)) {
        const std::string written = WithEscapes(WithoutForeignCharacters(*text));
        error = worksheet_write_string(Sheet, Row, column, written.c_str(), format);
    } else if (const auto* date = std::get_if<WorkbookDate>(&cell)) {
        if (!IsDay(date->Iso)) return Write(column, date->Iso);
        lxw_datetime day = DayOf(date->Iso);
        error = worksheet_write_datetime(Sheet, Row, column, &day, Date);
    }
    if (error != LXW_NO_ERROR) throw Failure(Target, error);
}

// The library would not tell that a disk was full while it put a sheet together.
void WorkbookWriter::Book::CheckRoom() {
    std::error_code error;
    const fs::path folder = fs::temp_directory_path(error);
    const fs::space_info room = error ? fs::space_info{} : fs::space(folder, error);
    constexpr std::uintmax_t besides = 1 << 20;
    if (!error && room.available < LargestSheet + besides) throw NoRoom();
}

bool WritesWorkbooks() { return true; }

WorkbookWriter::WorkbookWriter(std::string_view suitePath) : book_(std::make_unique<Book>(suitePath)) {}
WorkbookWriter::~WorkbookWriter() = default;

void WorkbookWriter::Sheet(const std::string& name, int heads) {
    book_->EndSheet();
    book_->Sheet = workbook_add_worksheet(book_->File, name.c_str());
    if (book_->Sheet == nullptr) throw Failure(book_->Target, "a workbook has no sheet \"" + name + "\"");
    book_->Row = 0;
    book_->Columns = 0;
    book_->Heads = static_cast<lxw_row_t>(heads);
    worksheet_freeze_panes(book_->Sheet, book_->Heads, 1);
}

void WorkbookWriter::Row(const std::vector<WorkbookCell>& cells) {
    lxw_col_t column = 0;
    for (const WorkbookCell& cell : cells) book_->Write(column++, cell);
    book_->Columns = std::max(book_->Columns, column);
    ++book_->Row;
}

void WorkbookWriter::Commit() {
    book_->EndSheet();
    book_->CheckRoom();
    lxw_workbook* const file = std::exchange(book_->File, nullptr);
    const lxw_error error = workbook_close(file);  // and gone
    if (error != LXW_NO_ERROR) throw Failure(book_->Target, error);
    MoveOver(book_->Beside.File, book_->Target);
}

}  // namespace quillmetra
