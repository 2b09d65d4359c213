// An XML part of an archive, told element by element.
#pragma once

#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

#include "platform/ZipArchive.h"

namespace quillmetra::sheets {

// Names are told without the prefix of their namespace.
class XmlTaker {
public:
    class Attributes {
    public:
        explicit Attributes(const char** pairs) : pairs_(pairs) {}
        // Null for none.
        const char* Find(std::string_view name) const;
        std::string Text(std::string_view name) const;
        // -1 for none, and for what is no whole number.
        int Whole(std::string_view name) const;

    private:
        const char** pairs_;
    };

    virtual ~XmlTaker() = default;
    virtual void Start(std::string_view, const Attributes&) {}
    virtual void End(std::string_view) {}
    virtual void Text(std::string_view) {}
    // Nothing more is wanted.
    bool Enough = false;
};

// What is kept of a part stays in memory: of more elements than these a part would fill the machine.
inline constexpr std::uint64_t MostKept = 4U << 20U;

// The local name of an element or attribute.
std::string_view LocalName(std::string_view name);

// Refuses what is no XML, what no spreadsheet writes, and more elements than these.
void ReadXml(ZipArchive& archive, const std::string& part, XmlTaker& taker,
             std::uint64_t mostElements = std::numeric_limits<std::uint64_t>::max());

}  // namespace quillmetra::sheets
