// The suite's names for what is done with each table: load it for the editor, split one of its lines, give
// the notes of a column. All of them are the one engine with the table's description, and that is what the
// suite itself calls; they are kept for their names.
#pragma once

#include "tables/TableSheet.h"

namespace quillmetra {

inline TableSheet GasLoad() { return LoadTable(table::Gas); }
inline TableSheet LiquidLoad() { return LoadTable(table::Liquid); }
inline TableSheet PipeLoad() { return LoadTable(table::Pipe); }
inline TableSheet ModulusLoad() { return LoadTable(table::Modulus); }
inline TableSheet MaterialLoad() { return LoadTable(table::Material); }
inline TableSheet WedgeLoad() { return LoadTable(table::Wedge); }
inline TableSheet RotameterLoad() { return LoadTable(table::Rotameter); }
inline TableSheet IOLLoad() { return LoadTable(table::Ifoa); }
inline TableSheet ElbowLoad() { return LoadTable(table::Elbow); }
inline TableSheet ValveLoad(std::string_view file) { return LoadTable(table::Valve, {.FileName = file}); }
inline TableSheet Valve3Load(std::string_view file) { return LoadTable(table::Valve3, {.FileName = file}); }
inline TableSheet AnnubarLoad(std::string_view file) { return LoadTable(table::Annubar, {.FileName = file}); }

inline TableFields MakeGasData(std::string_view line) { return SplitTableLine(table::Gas, line); }
inline TableFields LiquidData(std::string_view line) { return SplitTableLine(table::Liquid, line); }
inline TableFields PipeData(std::string_view line) { return SplitTableLine(table::Pipe, line); }
inline TableFields ModulusData(std::string_view line) { return SplitTableLine(table::Modulus, line); }
inline TableFields MaterialData(std::string_view line) { return SplitTableLine(table::Material, line); }
inline TableFields WedgeData(std::string_view line) { return SplitTableLine(table::Wedge, line); }
inline TableFields RotameterData(std::string_view line) { return SplitTableLine(table::Rotameter, line); }
inline TableFields IOLData(std::string_view line) { return SplitTableLine(table::Ifoa, line); }
inline TableFields AnnubarData(std::string_view line) { return SplitTableLine(table::Annubar, line); }
inline TableFields ElbowData(std::string_view line) { return SplitTableLine(table::Elbow, line); }
// Both tables of valves: table::Valve or table::Valve3.
inline TableFields CVData(const TableDescription& valves, std::string_view line) {
    return SplitTableLine(valves, line);
}

inline NoteLines NotesGas(int column) { return TableNotes(table::Gas, column); }
inline NoteLines NotesLiquid(int column) { return TableNotes(table::Liquid, column); }
inline NoteLines NotesPipe(int column) { return TableNotes(table::Pipe, column); }
inline NoteLines NotesModulus(int column) { return TableNotes(table::Modulus, column); }
inline NoteLines NotesMaterial(int column) { return TableNotes(table::Material, column); }
inline NoteLines NotesWedge(int column) { return TableNotes(table::Wedge, column); }
inline NoteLines NotesRotameter(int column) { return TableNotes(table::Rotameter, column); }
inline NoteLines NotesIOL(int column) { return TableNotes(table::Ifoa, column); }
inline NoteLines NotesElbow(int column) { return TableNotes(table::Elbow, column); }
inline NoteLines NotesAnnubar(int column, std::string_view model) {
    return TableNotes(table::Annubar, column, {.Model = model});
}
// The notes of the last group of models are those of all the others; it keeps its name and does nothing.
inline void Notes4546() {}
inline NoteLines NotesValve(int column, std::string_view file) {
    return TableNotes(table::Valve, column, {.FileName = file});
}

}  // namespace quillmetra
