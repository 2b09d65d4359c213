// The one exception type of the suite: a failure of the machine (file, database, arithmetic) with the
// number and the words that the user is shown.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace quillmetra {

struct RuntimeError : std::runtime_error {
    RuntimeError(int number, const std::string& description)
        : std::runtime_error(description), Number(number), Description(description) {}

    int Number;
    std::string Description;
};

// The failures that the suite raises itself; each stands here once.
namespace failure {
inline RuntimeError Overflow() { return {6, "Overflow"}; }
inline RuntimeError SubscriptOutOfRange() { return {9, "Subscript out of range"}; }
inline RuntimeError DivisionByZero() { return {11, "Division by zero"}; }
inline RuntimeError TypeMismatch() { return {13, "Type mismatch"}; }
inline RuntimeError BadFileName() { return {52, "Bad file name or number"}; }
inline RuntimeError FileNotFound() { return {53, "File not found"}; }
inline RuntimeError DeviceError() { return {57, "Device I/O error"}; }
inline RuntimeError InputPastEnd() { return {62, "Input past end of file"}; }
inline RuntimeError DiskFull() { return {61, "Disk full"}; }
inline RuntimeError NoDevice() { return {68, "Device unavailable"}; }
inline RuntimeError PathAccess() { return {75, "Path/File access error"}; }
inline RuntimeError PathNotFound() { return {76, "Path not found"}; }
inline RuntimeError Unloaded() { return {364, "Object was unloaded"}; }
inline RuntimeError NoSuchElement(std::string_view name, int index) {
    return {340, "Control array element '" + std::string(name) + "(" + std::to_string(index) +
                     ")' does not exist"};
}
inline RuntimeError NoSuchControl(std::string_view name) {
    return {423, "Control '" + std::string(name) + "' does not exist"};
}
inline RuntimeError PrinterError() { return {482, "Printer error"}; }
inline RuntimeError NoPdf() { return {445, "This build of the program writes no PDF"}; }
inline RuntimeError NoSuchForm(std::string_view name) {
    return {424, "Form '" + std::string(name) + "' does not exist"};
}
}  // namespace failure

}  // namespace quillmetra
