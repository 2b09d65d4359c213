// See ColourShades.h.
#include "forms/ColourShades.h"

#include <algorithm>
#include <cmath>

#include "forms/ColourSchemes.h"

namespace quillmetra {

namespace {

constexpr double LeastOfText = 4.5;
constexpr double LeastOfBorder = 3;
constexpr double BlackOnWhite = 20.9;
constexpr int Steps = 32;
constexpr Colour Black = 0x000000, White = 0xFFFFFF;

unsigned Part(Colour colour, unsigned i) { return (colour >> (8 * i)) & 0xFFU; }

// 0 black to 1 white (sRGB).
double Luminance(Colour colour) {
    constexpr double weights[] = {0.2126, 0.7152, 0.0722};
    double sum = 0;
    for (unsigned i = 0; i < 3; ++i) {
        const double part = Part(colour, i) / 255.0;
        sum += weights[i] * (part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4));
    }
    return sum;
}

double LeastContrast(std::initializer_list<Colour> grounds, Colour colour) {
    double least = BlackOnWhite;
    for (const Colour ground : grounds) least = std::min(least, Contrast(ground, colour));
    return least;
}

Colour BetterOnAll(std::initializer_list<Colour> grounds) {
    return LeastContrast(grounds, Black) >= LeastContrast(grounds, White) ? Black : White;
}

Colour Strengthened(std::initializer_list<Colour> grounds, Colour colour, double least) {
    const Colour end = BetterOnAll(grounds);
    for (int step = 0; step < Steps; ++step) {
        const Colour strong = Between(colour, end, static_cast<double>(step) / Steps);
        if (LeastContrast(grounds, strong) >= least) return strong;
    }
    return end;
}

}  // namespace

double Contrast(Colour a, Colour b) {
    constexpr double stray = 0.05;  // light that every screen gives back
    const double first = Luminance(a) + stray, second = Luminance(b) + stray;
    return std::max(first, second) / std::min(first, second);
}

Colour Between(Colour from, Colour to, double part) {
    Colour mixed = 0;
    for (unsigned i = 0; i < 3; ++i) {
        const double a = Part(from, i), b = Part(to, i);
        mixed |= static_cast<Colour>(std::lround(a + (b - a) * part)) << (8 * i);
    }
    return mixed;
}

Colour FirstSeen(std::initializer_list<Colour> grounds, Colour text, double least) {
    for (int step = 1; step <= Steps; ++step) {
        const Colour colour = Between(*grounds.begin(), text, static_cast<double>(step) / Steps);
        if (LeastContrast(grounds, colour) >= least) return colour;
    }
    return Strengthened(grounds, text, least);
}

Colour BoxBorder(Colour area, Colour box, Colour text) {
    if (Contrast(area, text) >= BlackOnWhite) return text;
    return FirstSeen({area, box}, text, LeastOfBorder);
}

Colour FaintText(Colour ground, Colour text) { return FirstSeen({ground}, text, LeastOfText); }

Colour HairLineOn(Colour ground, Colour text) {
    if (Contrast(ground, text) >= BlackOnWhite) return text;
    return Between(ground, text, 0.16);
}

Colour Readable(Colour ground, Colour colour, double least) { return Strengthened({ground}, colour, least); }

Colour AccentColour() {
    const Colour results = SlotColour(slot::ResultText);
    return Contrast(SlotColour(slot::Area), results) >= LeastOfBorder ? results : SlotColour(slot::AreaText);
}

}  // namespace quillmetra
