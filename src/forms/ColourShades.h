// Colours that follow from those of the slots: what a scheme of twelve does not say is made so that it can be
// seen on its ground, whatever the user has chosen.
#pragma once

#include <initializer_list>

#include "platform/Controls.h"

namespace quillmetra {

// From 1 to 21, by the luminance of the two on a screen.
double Contrast(Colour a, Colour b);

// The colour between two, at a part from 0 (the first) to 1 (the second).
Colour Between(Colour from, Colour to, double part);

// The first colour that is faint on its ground and yet has so much contrast to all grounds: on its way from
// the ground to the text, and past it to black or white where that is not enough.
Colour FirstSeen(std::initializer_list<Colour> grounds, Colour text, double least);

// The border of boxes on an area, seen against the area and against what is in them. A scheme of pure black
// and white has borders of the same.
Colour BoxBorder(Colour area, Colour box, Colour text);

// Text of second rank, as of what is switched off.
Colour FaintText(Colour ground, Colour text);

// The line around an area, that only tells it from another of its kind.
Colour HairLineOn(Colour ground, Colour text);

// A colour, brought nearer to black or white where it has not so much contrast to its ground.
Colour Readable(Colour ground, Colour colour, double least = 4.5);

// The one colour that leads the eye to what is chosen, ticked and pressed by Enter: that of the results, or
// of the text where the results' cannot be told from the ground.
Colour AccentColour();

}  // namespace quillmetra
