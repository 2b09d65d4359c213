// See RecordTransfer.h.
#include "records/RecordTransfer.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "core/Programs.h"
#include "core/Words.h"
#include "platform/Clock.h"
#include "platform/NumberText.h"
#include "platform/Utf8.h"
#include "records/OptionCodes.h"

namespace quillmetra {

namespace {

constexpr int CalcDateText = 10;
const FieldValue NoValue;  // an empty field, other than one that is left as it is

// The number of the record behind a cell; null for a cell that is a text.
double* NumberCell(const Cell& cell, int row) {
    switch (cell.Of) {
        case Group::CaseInput: return &Calc.CaseInput[At(row)][At(cell.Case)];
        case Group::CaseResult: return &Calc.CaseResult[At(row)][At(cell.Case)];
        case Group::PipeData: return &Calc.PipeData[At(row)];
        case Group::FittingCount: return &Calc.FittingCount[At(row)];
        case Group::HammerResult: return &Calc.HammerResult[At(row)];
        case Group::UnitFactor: return &Calc.UnitFactor[At(row)];
        case Group::FluidPercent: return &Calc.FluidPercent[At(row)];
        default: return nullptr;
    }
}

std::string* TextCell(const Cell& cell, int row) {
    switch (cell.Of) {
        case Group::UnitName: return &Calc.UnitName[At(row)];
        case Group::CaseText: return &Calc.CaseText[At(row)];
        case Group::HeadingText: return &Calc.HeadingText[At(row)];
        case Group::FluidData: return &Calc.FluidData[At(row)];
        default: return nullptr;
    }
}

std::string& BasisInUse() { return Calc.FluidType == words::Liquid ? Calc.LiquidBasis : Calc.Basis; }

FieldValue OrBlank(std::string text) {
    if (text.empty()) text.push_back(' ');
    return text;
}

// A case that was blanked, and one that was never calculated, has no results to keep. The equivalent length
// is one number for all cases.
FieldValue ResultOf(const Cell& cell, int row) {
    const bool ofLine = row == result::EquivLength;
    const int first = ofLine ? row : result::LossPer100;
    const int last = ofLine ? row : result::ReynoldsNumber;
    bool any = false;
    for (int i = first; i <= last; ++i) any = any || StandingResult(i, cell.Case) != 0;
    if (!any) return {};
    return StandingResult(row, cell.Case);
}

FieldValue HammerResultOf(int row) {
    if (!ResultsStand(0)) return {};
    return StandingHammerResult(row);
}

std::optional<FieldValue> DateOf(const std::string& text, bool keepsFormer) {
    const std::string day = IsoDate(text);
    if (!day.empty()) return FieldValue(day);
    if (keepsFormer) return {};
    return NoValue;
}

std::optional<FieldValue> ValueOfCell(const RecordField& field, const Cell& cell) {
    const int row = CellRow(field);
    if (cell.Of == Group::CaseResult) return ResultOf(cell, row);
    if (cell.Of == Group::CaseInput) return StandingInput(row, cell.Case);
    if (cell.Of == Group::HammerResult) return HammerResultOf(row);
    if (const double* number = NumberCell(cell, row)) return *number;
    const std::string& text = *TextCell(cell, row);
    if (field.Shape.Type == FieldType::Date) return DateOf(text, row == CalcDateText);
    return OrBlank(cell.Of == Group::FluidData ? CompactFluidRow(text) : text);
}

// The kind of steam is kept in the option codes, and the form puts its word back.
std::string TitleToFit(std::size_t size) {
    const std::size_t tail = Calc.ProgramTitle.rfind(" - ");
    const bool tooLong = !Calc.SteamKind.empty() && CharacterCount(Calc.ProgramTitle) > size;
    return tooLong && tail != std::string::npos ? Calc.ProgramTitle.substr(0, tail) : Calc.ProgramTitle;
}

std::optional<FieldValue> ValueOfMade(const RecordField& field, Made made) {
    const bool hammer = Calc.CurrentProgram == program::WaterHammer;
    switch (made) {
        case Made::Tag: return std::string(Trim(Calc.Tag));
        case Made::LiquidWord: return words::Liquid;
        case Made::ProgramNumber: return static_cast<double>(StoredProgramNumber());
        case Made::BasisInUse: return OrBlank(BasisInUse());
        case Made::Title: return OrBlank(TitleToFit(At(field.Shape.Size)));
        case Made::OptionCodes: return Calc.OtherCalcs.empty() ? words::NoCodes : Calc.OtherCalcs;
        case Made::Temperature: {
            const double value = Calc.CaseInput[input::Temperature][At(field.Case)];
            if (value == 0 && Calc.TemperatureBlank[At(field.Case)] == 1) return NoValue;
            return value;
        }
        case Made::NumberAsText: return Str(StandingInput(4, field.Case));
        case Made::Fouling: return NumberToFit(Calc.PipeFouling, At(field.Shape.Size));
        case Made::ForceFactor:
            if (hammer) return Calc.UnitFactor[unit::Force];
            return {};
        case Made::ForceName:
            if (hammer) return OrBlank(Calc.UnitName[unit::Force]);
            return {};
    }
    return {};
}

std::optional<FieldValue> ValueOf(const RecordField& field) {
    if (const auto* cell = std::get_if<Cell>(&field.From)) return ValueOfCell(field, *cell);
    if (const auto* made = std::get_if<Made>(&field.From)) return ValueOfMade(field, *made);
    if (const auto* text = std::get_if<TextMember>(&field.From)) return OrBlank(Calc.*(*text));
    if (const auto* number = std::get_if<NumberMember>(&field.From)) return Calc.*(*number);
    if (const auto* whole = std::get_if<WholeMember>(&field.From)) return static_cast<double>(Calc.*(*whole));
    return {};
}

// --- Load ------------------------------------------------------------------------------------------------

std::string TextOf(const FieldValue& value) {
    const auto* text = std::get_if<std::string>(&value);
    return text == nullptr ? "" : std::string(Trim(*text));
}

double NumberOf(const FieldValue& value) {
    const auto* number = std::get_if<double>(&value);
    return number == nullptr ? 0 : *number;
}

void TakeCell(const RecordField& field, const Cell& cell, const FieldValue& value) {
    const int row = CellRow(field);
    if (double* number = NumberCell(cell, row)) {
        *number = NumberOf(value);
    } else {
        const std::string text = TextOf(value);
        *TextCell(cell, row) = field.Shape.Type == FieldType::Date ? DateText(text) : text;
    }
}

void TakeMade(const RecordField& field, Made made, const FieldValue& value) {
    const std::string text = TextOf(value);
    switch (made) {
        case Made::Tag: Calc.Tag = Calc.TagSaved = text; break;
        case Made::LiquidWord: break;
        case Made::ProgramNumber: SplitProgramNumber(static_cast<int>(NumberOf(value))); break;
        case Made::BasisInUse: BasisInUse() = text == words::Volume ? words::Volume : words::Mass; break;
        case Made::Title: Calc.ProgramTitle = text; break;
        case Made::OptionCodes: Calc.OtherCalcs = text.empty() ? words::NoCodes : text; break;
        case Made::Temperature:
            Calc.CaseInput[input::Temperature][At(field.Case)] = NumberOf(value);
            Calc.TemperatureBlank[At(field.Case)] = std::holds_alternative<std::monostate>(value) ? 1 : 0;
            break;
        case Made::NumberAsText: Calc.CaseInput[input::BoilingPoint][At(field.Case)] = Val(text); break;
        case Made::Fouling: Calc.PipeFouling = Val(text); break;
        case Made::ForceFactor:
            if (Calc.CurrentProgram == program::WaterHammer) Calc.UnitFactor[unit::Force] = NumberOf(value);
            break;
        case Made::ForceName:
            if (Calc.CurrentProgram == program::WaterHammer) Calc.UnitName[unit::Force] = text;
            break;
    }
}

bool IsTaken(Loads load, bool standIn) {
    if (standIn) return load == Loads::Never;
    switch (load) {
        case Loads::Always: return true;
        case Loads::Never: return false;
        case Loads::ForGas: return Calc.FluidType == words::Gas;
        case Loads::NotForGas: return Calc.FluidType != words::Gas;
    }
    return false;
}

}  // namespace

RowValues RowOfRecord(const RecordTable& table) {
    RowValues values;
    values.reserve(table.Fields.size());
    for (const RecordField& field : table.Fields) {
        std::optional<FieldValue> value = ValueOf(field);
        if (value) value = FittedValue(field.Shape, std::move(*value));
        values.push_back(std::move(value));
    }
    return values;
}

namespace {

template <typename Value>
void TakeValues(const RecordTable& table, Value valueOf, bool standIn) {
    const std::string fluidType = Calc.FluidType;  // the browser has set it, see GetTRCalc
    for (std::size_t i = 0; i < table.Fields.size(); ++i) {
        const RecordField& field = table.Fields[i];
        if (!IsTaken(field.Rules.Load, standIn)) continue;
        const FieldValue& value = valueOf(i);
        if (const auto* cell = std::get_if<Cell>(&field.From)) TakeCell(field, *cell, value);
        if (const auto* made = std::get_if<Made>(&field.From)) TakeMade(field, *made, value);
        if (const auto* text = std::get_if<TextMember>(&field.From)) Calc.*(*text) = TextOf(value);
        if (const auto* number = std::get_if<NumberMember>(&field.From)) Calc.*(*number) = NumberOf(value);
        if (const auto* whole = std::get_if<WholeMember>(&field.From)) {
            Calc.*(*whole) = static_cast<int>(NumberOf(value));
        }
    }
    Calc.FluidType = fluidType;
}

}  // namespace

void TakeRow(const RecordTable& table, const Recordset& row, bool standIn) {
    TakeValues(
        table, [&row](std::size_t i) -> const FieldValue& { return row.Value(i); }, standIn);
}

void TakeRow(const RecordTable& table, const std::vector<FieldValue>& row) {
    TakeValues(
        table, [&row](std::size_t i) -> const FieldValue& { return row[i]; }, false);
}

int StoredProgramNumber() {
    const int set = Calc.FluidType == words::Liquid ? Calc.LiquidUnitSet : Calc.GasUnitSet;
    return Calc.CurrentProgram * 100 + set;
}

void SplitProgramNumber(int stored) {
    Calc.ProgramNumber = stored;
    Calc.CurrentProgram = ProgramOf(stored);
    if (HasUnitSet(stored))
        (Calc.FluidType == words::Liquid ? Calc.LiquidUnitSet : Calc.GasUnitSet) = stored % 100;
}

std::string CompactFluidRow(const std::string& row) {
    std::string compact;
    std::size_t start = 0;
    while (start < row.size()) {
        const std::size_t end = std::min(row.find(',', start), row.size());
        compact += Trim(std::string_view(row).substr(start, end - start));
        compact += ',';
        start = end + 1;
    }
    return compact;
}

std::string NumberToFit(double value, std::size_t characters) {
    std::string text = TrimmedStr(value);
    for (int digits = 15; digits > 0 && text.size() > characters; --digits) {
        std::array<char, 40> buffer{};
        const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                           std::chars_format::general, digits);
        text = TrimmedStr(Val({buffer.data(), static_cast<std::size_t>(written.ptr - buffer.data())}));
    }
    return text;
}

}  // namespace quillmetra
