// What the page of a run and the page over many have in common: the head with the style, and small pieces of drawing.
// A page asks no server for anything and needs no script; colours never stand alone, a word is always beside them.
#pragma once

#include <string>
#include <string_view>

#include "record.h"

namespace tandekor::line
{

// The beginning of a page up to <main>, with a spot of the verdict's colour on the browser's tab.
std::string PageHead(std::string_view title, Verdict verdict);
std::string PageFoot();

// A verdict as a small label.
std::string Badge(Verdict verdict);

// The sign of a verdict; its class in the style sheet is its name.
std::string_view VerdictSign(Verdict verdict);

// A place across a drawing, from 0 to 1, as a percentage for SVG.
std::string Across(double share);

// One bar of a table, its length a share of the cell.
std::string ShareBar(double share, std::string_view cssClass);

// A row of the list of facts at the top; nothing for an empty value. The value may be HTML.
std::string Fact(std::string_view name, std::string_view html);

}  // namespace tandekor::line
