#pragma once

#include <string_view>

namespace gradereport {

/// Looks of the report: one grid of 8 px, one accent colour, light and dark, and a form for paper. The
/// colours of the grades stay apart for colour-blind readers and reach a contrast of 3:1 on a card.
inline constexpr std::string_view reportStyle = R"css(
:root {
  --page: #f5f6f8; --card: #fff; --ink: #1c2229; --muted: #5a6470; --line: #dce0e5; --soft: #eceff2;
  --accent: #1d5fb4; --raw: #8a949f; --out: #e9ecf0;
  --good: #00805f; --twin: #b86500; --flat: #b3263a; --none: #6b7480; --other: #7350a8; --failed: #1c2229;
}
@media screen and (prefers-color-scheme: dark) {
  :root {
    --page: #14171a; --card: #1c2024; --ink: #e5e8eb; --muted: #a2abb5; --line: #333a41; --soft: #262b31;
    --accent: #7db2f7; --raw: #78828d; --out: #2a3037;
    --good: #35c49a; --twin: #f0a23c; --flat: #f4737f; --none: #9aa3ad; --other: #b79bea; --failed: #e5e8eb;
  }
}
* { box-sizing: border-box; }
body {
  margin: 0 auto; padding: 32px 24px; max-width: 1328px; background: var(--page); color: var(--ink);
  font: 14px/20px system-ui, -apple-system, "Segoe UI", Roboto, "Helvetica Neue", Arial, sans-serif;
  font-variant-numeric: tabular-nums;
}
h1, h2, h3, p, dl, dd, ul { margin: 0; padding: 0; }
h1 { font-size: 24px; line-height: 32px; font-weight: 600; }
h2 { font-size: 18px; line-height: 24px; font-weight: 600; }
h3 { font-size: 14px; line-height: 20px; font-weight: 600; overflow-wrap: anywhere; }
section { margin-top: 32px; }
button, input { font: inherit; color: inherit; }
a { color: var(--accent); text-decoration: none; }
a:hover { text-decoration: underline; }
:focus-visible { outline: 2px solid var(--accent); outline-offset: 2px; }
[hidden] { display: none !important; }
dt { color: var(--muted); font-size: 12px; line-height: 16px; }
.symbols { position: absolute; }
.icon { width: 16px; height: 16px; flex: none; }
.good { fill: var(--good); } .twin { fill: var(--twin); } .flat { fill: var(--flat); }
.none { fill: var(--none); } .other { fill: var(--other); } .failed { fill: var(--failed); }

.page, .page dl, .card dl, .bar, .legend { display: flex; flex-wrap: wrap; }
.page { justify-content: space-between; align-items: end; gap: 16px 32px; }
.page dl { gap: 8px 24px; }

.tiles { display: grid; grid-template-columns: repeat(7, 1fr); gap: 8px; margin-top: 24px; }
.tile {
  display: flex; flex-direction: column; align-items: flex-start; padding: 12px 16px; text-align: left; background: var(--card);
  border: 1px solid var(--line); border-radius: 8px;
}
.tile:enabled { cursor: pointer; }
.tile:enabled:hover { border-color: var(--muted); }
.tile[aria-pressed=true] { border-color: var(--accent); box-shadow: inset 0 0 0 1px var(--accent); }
.tile b { font-size: 24px; line-height: 32px; font-weight: 600; }
.tile span, .badge { display: inline-flex; align-items: center; gap: 6px; white-space: nowrap; }
.tile span { color: var(--muted); }

.bar { align-items: center; gap: 8px 16px; margin-bottom: 16px; }
#shown { color: var(--muted); }
#query {
  margin-left: auto; width: 256px; max-width: 100%; padding: 5px 12px; background: var(--card);
  border: 1px solid var(--line); border-radius: 8px;
}
.scroll { max-height: 70vh; overflow: auto; background: var(--card); border: 1px solid var(--line); border-radius: 8px; }
table { width: 100%; border-collapse: separate; border-spacing: 0; }
th, td { padding: 8px 12px; text-align: left; vertical-align: top; border-top: 1px solid var(--line); }
thead th { position: sticky; top: 0; z-index: 1; padding: 0; border-top: 0; border-bottom: 1px solid var(--line); background: var(--card); }
thead button {
  width: 100%; padding: 8px 12px; border: 0; background: none; text-align: inherit; white-space: nowrap;
  font-weight: 600; font-size: 12px; color: var(--muted);
}
thead button:enabled { cursor: pointer; }
thead button:enabled:hover, [aria-sort] button { color: var(--ink); }
thead button:focus-visible { outline-offset: -2px; }
[aria-sort=ascending] button::after { content: " \2191"; }
[aria-sort=descending] button::after { content: " \2193"; }
tbody tr:first-child > * { border-top: 0; }
tbody tr:hover > * { background: var(--soft); }
tbody th { min-width: 200px; font-weight: 400; overflow-wrap: anywhere; }
small { display: block; color: var(--muted); font-size: 12px; line-height: 16px; }
.n { text-align: right; white-space: nowrap; }
.r { min-width: 256px; overflow-wrap: anywhere; }
.r div { display: -webkit-box; -webkit-box-orient: vertical; -webkit-line-clamp: 2; overflow: hidden; }
.d, code { font-family: ui-monospace, "Cascadia Mono", Menlo, Consolas, monospace; font-size: 12px; }
.d { white-space: nowrap; color: var(--muted); }
thead .d { font-family: inherit; }

.legend { gap: 8px 24px; margin: 8px 0 16px; list-style: none; color: var(--muted); }
.legend li { display: flex; align-items: center; gap: 8px; }
.legend svg { width: 28px; height: 16px; }
#cards { display: grid; grid-template-columns: repeat(auto-fill, minmax(min(100%, 520px), 1fr)); gap: 16px; }
.card {
  display: flex; flex-direction: column; padding: 16px; background: var(--card); border: 1px solid var(--line); border-radius: 8px;
  content-visibility: auto; contain-intrinsic-size: auto 440px;
}
.card:target { border-color: var(--accent); }
.card header { display: flex; justify-content: space-between; align-items: start; gap: 16px; }
.card .badge { font-weight: 600; }
.folder, .digest { color: var(--muted); font-size: 12px; line-height: 16px; overflow-wrap: anywhere; }
.reason { margin-top: 8px; overflow-wrap: anywhere; }
.label { margin-top: 8px; color: var(--muted); font-size: 12px; line-height: 16px; }
.warnings { padding-left: 20px; color: var(--muted); overflow-wrap: anywhere; }
.card dl { gap: 8px 24px; margin: auto 0 8px; padding-top: 12px; }
.digest code { font-size: 11px; }

.chart { display: block; width: 100%; overflow: visible; margin-top: 8px; font-size: 12px; }
.chart text { fill: var(--muted); }
.times, .middle { text-anchor: middle; }
.heights, .end { text-anchor: end; }
.note text { fill: var(--ink); stroke: var(--card); stroke-width: 3px; stroke-linejoin: round; paint-order: stroke; }
.grid, .axis, .raw, .smoothed, .threshold, .valley, .removed { fill: none; stroke-linecap: round; stroke-linejoin: round; }
.grid { stroke: var(--line); stroke-width: .75; }
.axis { stroke: var(--muted); stroke-linecap: butt; }
.out { fill: var(--out); }
.raw { stroke: var(--raw); stroke-width: 1.25; }
.smoothed { stroke: var(--accent); stroke-width: 1.75; }
.threshold { stroke: var(--muted); stroke-dasharray: 5 5; }
.valley { stroke: var(--ink); stroke-width: 1.5; }
.removed { stroke: var(--muted); stroke-width: 1.25; pointer-events: all; }
.marker { stroke: var(--card); stroke-width: 1.5; paint-order: stroke; }

@media screen and (max-width: 800px) {
  body { padding: 24px 16px; }
  .tiles { grid-template-columns: repeat(auto-fill, minmax(120px, 1fr)); }
  .scroll .n:nth-child(3), .scroll .n:nth-child(n+5), .scroll .d { display: none; }
  tbody th { min-width: 184px; }
  .r { min-width: 176px; }
}
@media screen and (max-width: 520px) {
  .chart { font-size: 16px; }
  #query { margin-left: 0; width: 100%; }
}
@media print {
  @page { margin: 12mm; }
  :root { --page: #fff; }
  body { padding: 0; max-width: none; font-size: 9pt; line-height: 12pt; }
  section { margin-top: 16px; }
  #query, #shown { display: none; }
  .tile[aria-pressed=true] { border-color: var(--line); box-shadow: none; }
  .tile { padding: 4px 8px; }
  .scroll { max-height: none; overflow: visible; border: 0; }
  th, td, thead button { padding: 4px 6px; }
  thead { display: table-header-group; }
  thead th { position: static; }
  tr, .card { break-inside: avoid; }
  .r div { display: block; }
  .r { min-width: 0; }
  tbody th { min-width: 160px; }
  thead button { display: contents; color: inherit; }
  thead th { padding: 4px 6px; font-size: 8pt; }
  .scroll .n:nth-child(n+7), .scroll .d { display: none; }
  #cards { grid-template-columns: 1fr 1fr; gap: 12px; }
  .card { content-visibility: visible; padding: 8px 12px; }
  .card dl { gap: 4px 12px; margin-bottom: 4px; padding-top: 8px; }
  .card h3 { font-size: 10pt; line-height: 16px; }
  dt, small, .folder, .label, .digest { font-size: 7pt; line-height: 9pt; }
  .chart { font-size: 14px; }
  .digest code { font-size: 5.5pt; }
  h2, .legend { break-after: avoid; }
  a { color: inherit; }
}
)css";

} // namespace gradereport
