#include "record_style.h"

#include <algorithm>
#include <array>

#include "record_text.h"

namespace tandekor::line
{

namespace
{

constexpr std::string_view style = R"css(
:root { color-scheme: light dark;
  --paper: #fff; --card: #f6f7f9; --ink: #1b1f24; --soft: #59626d; --rule: #d9dee4;
  --good: #14733a; --good-soft: #dcf2e3; --bad: #b3201c; --bad-soft: #fde4e2; --open: #875400; --open-soft: #fff0cf;
  --idle: #59626d; --idle-soft: #e8ebef; --link: #0b57b5; }
@media (prefers-color-scheme: dark) { :root {
  --paper: #14171b; --card: #1d2227; --ink: #e6e9ed; --soft: #a2abb5; --rule: #353c44;
  --good: #5fd38a; --good-soft: #17351f; --bad: #ff8a82; --bad-soft: #451a19; --open: #f2bd59; --open-soft: #3d2c0b;
  --idle: #a2abb5; --idle-soft: #2b3138; --link: #85b8ff; } }
.passed { --tone: var(--good); --tint: var(--good-soft); }
.failed { --tone: var(--bad); --tint: var(--bad-soft); }
.not_judged { --tone: var(--open); --tint: var(--open-soft); }
.skipped, .not_run { --tone: var(--idle); --tint: var(--idle-soft); }
* { box-sizing: border-box; }
body { margin: 0; background: var(--paper); color: var(--ink); font: 16px/1.45 system-ui, "Segoe UI", Roboto, "DejaVu Sans", sans-serif; }
main { max-width: 72rem; margin: 0 auto; padding: 1rem; }
h1 { margin: 0; font-size: 1.15rem; overflow-wrap: anywhere; }
h2 { margin: 2.2rem 0 .7rem; font-size: 1.25rem; }
h3 { margin: 0; font-size: 1.05rem; overflow-wrap: anywhere; }
p { margin: .4rem 0; overflow-wrap: anywhere; }
a { color: var(--link); }
.soft { color: var(--soft); }
.number { font-variant-numeric: tabular-nums; white-space: nowrap; }
.banner { display: flex; flex-wrap: wrap; gap: .4rem 1.4rem; align-items: center; padding: 1.1rem 1.3rem;
  border-radius: .6rem; border: 1px solid var(--tone); border-left-width: .7rem; background: var(--tint); }
.banner .verdict { flex: 0 0 auto; font-size: 2.6rem; line-height: 1.1; font-weight: 800; color: var(--tone); }
.banner > div { flex: 1 1 18rem; min-width: 0; }
.counts { display: flex; flex-wrap: wrap; gap: .5rem; margin: .9rem 0; padding: 0; list-style: none; }
.counts li { flex: 1 1 7rem; padding: .5rem .8rem; border-radius: .5rem; background: var(--card); border-bottom: 3px solid var(--tone, var(--rule)); }
.counts b { display: block; font-size: 1.4rem; line-height: 1.3; white-space: nowrap; }
.facts { display: grid; grid-template-columns: repeat(auto-fill, minmax(10rem, 1fr)); gap: .6rem 1.5rem; margin: 1rem 0 0; }
.facts dt { color: var(--soft); font-size: .85rem; }
.facts dd { margin: 0; overflow-wrap: anywhere; }
.badge { display: inline-block; padding: .05rem .5rem; border-radius: .3rem; font-size: .8rem; font-weight: 700;
  white-space: nowrap; color: var(--tone); background: var(--tint); }
.card { margin: 0 0 1rem; padding: .9rem 1.1rem; border: 1px solid var(--rule); border-left: .35rem solid var(--tone, var(--rule));
  border-radius: .5rem; background: var(--card); }
.card header { display: flex; flex-wrap: wrap; gap: .3rem .7rem; align-items: center; }
.cause { display: grid; grid-template-columns: max-content 1fr; gap: .1rem .9rem; margin: .5rem 0; }
.cause dt { color: var(--soft); }
.cause dd { margin: 0; overflow-wrap: anywhere; }
pre, code { font: .84rem/1.5 ui-monospace, Consolas, "DejaVu Sans Mono", monospace; }
pre { margin: .5rem 0 0; padding: .6rem .8rem; max-height: 26rem; overflow: auto; tab-size: 2; border: 1px solid var(--rule);
  border-radius: .4rem; background: var(--paper); }
pre mark { display: block; margin: 0 -.8rem; padding: 0 .8rem; color: var(--bad); background: var(--bad-soft); font-weight: 700; }
table { width: 100%; border-collapse: collapse; }
th { text-align: left; font-size: .85rem; color: var(--soft); font-weight: 600; }
th, td { padding: .4rem .6rem; border-bottom: 1px solid var(--rule); vertical-align: top; overflow-wrap: anywhere; }
th.number, td.number { text-align: right; }
tr.group th { padding-top: 1.2rem; font-size: 1rem; color: var(--ink); }
td.bar { min-width: 10rem; width: 30%; } td.bar > svg.failed { margin-top: .3rem; }
details summary { cursor: pointer; color: var(--link); font-size: .85rem; }
svg { display: block; width: 100%; overflow: visible; }
svg text { font-size: .7rem; fill: var(--soft); }
.rail { fill: var(--idle-soft); }
.band { fill: var(--good-soft); stroke: var(--good); stroke-width: 1; }
.limit { stroke: var(--good); stroke-width: 2; }
.mark { fill: var(--tone); stroke: var(--paper); stroke-width: 1.5; }
.share { fill: var(--tone, var(--soft)); }
.columns { display: grid; grid-template-columns: repeat(auto-fill, minmax(19rem, 1fr)); gap: 1rem; }
.columns .card { margin: 0; }
footer { margin: 2.5rem 0 1rem; color: var(--soft); font-size: .85rem; }
@media (max-width: 40rem) {
  td.bar { min-width: 6rem; }
  table.stack thead { position: absolute; clip-path: inset(50%); width: 1px; height: 1px; overflow: hidden; }
  table.stack tr { display: flex; flex-wrap: wrap; gap: .1rem .7rem; padding: .6rem 0; border-bottom: 1px solid var(--rule); }
  table.stack td, table.stack tr.group th { border: 0; padding: 0; text-align: left; }
  table.stack td.bar, table.stack td.wide { flex: 1 0 100%; }
  pre { white-space: pre-wrap; overflow-wrap: anywhere; }
  .banner .verdict { font-size: 2.1rem; } }
@media print {
  :root { --paper: #fff; --card: #fff; --ink: #000; --soft: #444; --rule: #bbb; --good: #0d5c2c; --bad: #a01512; --open: #6b4300;
    --idle: #444; --good-soft: #e3f4e8; --bad-soft: #fbe3e1; --open-soft: #fff3d9; --idle-soft: #eee; --link: #000; }
  * { print-color-adjust: exact; -webkit-print-color-adjust: exact; }
  body { font-size: 10pt; } main { max-width: none; padding: 0; }
  pre { max-height: none; overflow: visible; white-space: pre-wrap; overflow-wrap: anywhere; }
  .card, tr { break-inside: avoid; } .card:has(pre) { break-inside: auto; } h2, header { break-after: avoid; }
  details { display: none; } }
)css";

constexpr std::array<std::string_view, 5> signs{"\u2713", "\u2717", "?", "\u2013", "\u25CB"};
constexpr std::array<std::string_view, 5> tabColours{"14733a", "b3201c", "875400", "59626d", "59626d"};

}  // namespace

std::string PageHead(std::string_view title, Verdict verdict)
{
    std::string html = "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n";
    html += "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n";
    html += "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; style-src 'unsafe-inline'; "
            "img-src data:\">\n";
    html += "<link rel=\"icon\" href=\"data:image/svg+xml,%3Csvg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 9 9'%3E"
            "%3Ccircle cx='4.5' cy='4.5' r='4.5' fill='%23";
    html += tabColours.at(static_cast<size_t>(verdict));
    html += "'/%3E%3C/svg%3E\">\n<title>" + Escaped(title) + "</title>\n<style>";
    html += style;
    return html + "</style>\n</head>\n<body>\n<main>\n";
}

std::string PageFoot() { return "</main>\n</body>\n</html>\n"; }

std::string Badge(Verdict verdict)
{
    return "<span class=\"badge " + std::string{VerdictName(verdict)} + "\">" + std::string{VerdictSign(verdict)} + " "
           + std::string{VerdictShown(verdict)} + "</span>";
}

std::string_view VerdictSign(Verdict verdict) { return signs.at(static_cast<size_t>(verdict)); }

std::string Across(double share) { return Fixed(std::clamp(share, 0.0, 1.0) * 100.0, 2) + "%"; }

std::string ShareBar(double share, std::string_view cssClass)
{
    return "<svg class=\"" + std::string{cssClass}
           + "\" height=\"12\" aria-hidden=\"true\"><rect class=\"share\" width=\"" + Across(share)
           + "\" height=\"12\" rx=\"2\"/></svg>";
}

std::string Fact(std::string_view name, std::string_view html)
{
    if (html.empty())
        return {};
    return "<div><dt>" + std::string{name} + "</dt><dd>" + std::string{html} + "</dd></div>\n";
}

}  // namespace tandekor::line
