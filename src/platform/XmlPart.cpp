// See XmlPart.h.
#include "platform/XmlPart.h"

#include <charconv>
#include <exception>
#include <memory>
#include <vector>

#include <expat.h>

#include "platform/SheetFormats.h"

namespace quillmetra::sheets {

namespace {

// An element within others, and one tag: beyond these the parser itself would fill the machine.
constexpr int MostLevels = 100;
constexpr XML_Index LongestTag = 16 << 20;

RuntimeError Damaged(const std::string& what) { return Refused("The workbook is damaged: " + what); }

// A parser in C cannot be left by a throw: it is stopped, and the failure goes on behind it.
struct Course {
    XML_Parser Parser;
    XmlTaker& Taker;
    const std::string& Part;
    const std::uint64_t MostElements;
    std::uint64_t Elements = 0;
    int Level = 0;
    std::exception_ptr Failure = {};

    void Start(const char* name, const char** attributes) {
        if (++Level > MostLevels) throw Damaged(Part + " has elements in one another without end");
        if (++Elements > MostElements) throw Damaged(Part + " has too many elements");
        Taker.Start(LocalName(name), XmlTaker::Attributes(attributes));
    }
    void End(const char* name) {
        --Level;
        Taker.End(LocalName(name));
    }

    template <typename Act>
    void Run(Act act) {
        if (Failure || Taker.Enough) return;
        try {
            act();
        } catch (...) {
            Failure = std::current_exception();
        }
        if (Failure || Taker.Enough) XML_StopParser(Parser, XML_FALSE);
    }
};

Course& CourseOf(void* data) { return *static_cast<Course*>(data); }

void XMLCALL OnStart(void* data, const char* name, const char** attributes) {
    Course& course = CourseOf(data);
    course.Run([&] { course.Start(name, attributes); });
}
void XMLCALL OnEnd(void* data, const char* name) {
    Course& course = CourseOf(data);
    course.Run([&] { course.End(name); });
}
void XMLCALL OnText(void* data, const char* text, int length) {
    Course& course = CourseOf(data);
    course.Run([&] { course.Taker.Text({text, static_cast<std::size_t>(length)}); });
}
// No workbook declares a type, and with it entities that grow.
void XMLCALL OnDoctype(void* data, const char*, const char*, const char*, int) {
    CourseOf(data).Run([] { throw Damaged("a part of it declares a type"); });
}

}  // namespace

const char* XmlTaker::Attributes::Find(std::string_view name) const {
    for (const char** pair = pairs_; *pair != nullptr; pair += 2) {
        if (LocalName(*pair) == name) return pair[1];
    }
    return nullptr;
}

std::string XmlTaker::Attributes::Text(std::string_view name) const {
    const char* const value = Find(name);
    return value == nullptr ? "" : value;
}

int XmlTaker::Attributes::Whole(std::string_view name) const {
    const std::string text = Text(name);
    int value = -1;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    return error == std::errc{} && end == text.data() + text.size() ? value : -1;
}

std::string_view LocalName(std::string_view name) {
    const std::size_t colon = name.rfind(':');
    return colon == std::string_view::npos ? name : name.substr(colon + 1);
}

void ReadXml(ZipArchive& archive, const std::string& part, XmlTaker& taker, std::uint64_t mostElements) {
    const std::unique_ptr<XML_ParserStruct, decltype(&XML_ParserFree)> parser(XML_ParserCreate(nullptr),
                                                                              XML_ParserFree);
    if (parser == nullptr) throw std::bad_alloc();
    Course course{parser.get(), taker, part, mostElements};
    XML_SetUserData(parser.get(), &course);
    XML_SetElementHandler(parser.get(), OnStart, OnEnd);
    XML_SetCharacterDataHandler(parser.get(), OnText);
    XML_SetStartDoctypeDeclHandler(parser.get(), OnDoctype);

    archive.Open(part);
    std::vector<char> buffer(std::size_t{1} << 16U);
    XML_Index given = 0;
    for (bool more = true; more && !taker.Enough;) {
        const std::size_t count = archive.Read(buffer.data(), buffer.size());
        more = count > 0;
        const XML_Status state =
            XML_Parse(parser.get(), buffer.data(), static_cast<int>(count), more ? 0 : 1);
        if (course.Failure) std::rethrow_exception(course.Failure);
        if (state == XML_STATUS_ERROR && !taker.Enough)
            throw Damaged(part + ", line " + std::to_string(XML_GetCurrentLineNumber(parser.get())) + ", " +
                          XML_ErrorString(XML_GetErrorCode(parser.get())));
        given += static_cast<XML_Index>(count);
        if (given - XML_GetCurrentByteIndex(parser.get()) > LongestTag)
            throw Damaged(part + " has a tag of more than 16 MB");
    }
}

}  // namespace quillmetra::sheets
