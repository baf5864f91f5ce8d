/// How the page looks.
#pragma once

namespace workbench {

/// The style sheet: two columns, labels and pictures of 640 pixels, one below
/// the other on narrow screens; light or dark as the reader's system is.
inline constexpr char Style[] = R"(
:root {
  --paper: #fbfaf8; --ink: #1d1f23; --soft: #63666e; --line: #dedbd5; --panel: #ffffff;
  --beyond: #efebe4; --accent: #2b5fb3;
  --red: #d8323c; --green: #1f9d55; --blue: #2f6bea; --mark: #8b8780;
}
@media (prefers-color-scheme: dark) {
  :root {
    --paper: #16181c; --ink: #e6e5e2; --soft: #9b9ea6; --line: #32353c; --panel: #1d2025;
    --beyond: #292c33; --accent: #8db4f5;
    --red: #ff6b6f; --green: #4fc987; --blue: #76a2ff; --mark: #7b7f88;
  }
}
* { box-sizing: border-box; }
body {
  margin: 0 auto; padding: 2.5rem 1.25rem; max-width: 58.5rem;
  background: var(--paper); color: var(--ink);
  font: 1rem/1.5 system-ui, -apple-system, "Segoe UI", Roboto, "Noto Sans", sans-serif;
}
code { font: 0.85em/1.4 ui-monospace, "Cascadia Mono", Menlo, Consolas, monospace; }
a { color: var(--accent); }
img {
  display: block; width: 100%; border-radius: 3px;
  outline: 1px solid rgb(128 128 128 / 0.35); outline-offset: -1px;
}
h1 { font-size: 1.9rem; line-height: 1.2; margin: 0 0 1.5rem; letter-spacing: -0.01em; }
h2 { font-size: 1.4rem; line-height: 1.2; margin: 0; letter-spacing: -0.005em; }
p { margin: 0 0 0.75rem; max-width: 42rem; }
nav ul {
  list-style: none; margin: 0 0 1.75rem; padding: 0;
  display: grid; grid-template-columns: repeat(auto-fill, minmax(15rem, 1fr)); gap: 1rem 1.25rem;
}
nav a { display: block; color: inherit; text-decoration: none; font-size: 0.875rem; }
nav a:hover span, nav a:focus span { color: var(--accent); text-decoration: underline; }
nav img { height: 1.75rem; margin-bottom: 0.2rem; }
details { font-size: 0.925rem; color: var(--soft); }
details ul { padding-left: 1.2rem; max-width: 42rem; }
summary { cursor: pointer; color: var(--ink); margin-bottom: 0.5rem; }
section { border-top: 1px solid var(--line); margin-top: 3rem; padding-top: 2rem; }
.key { margin: 0.15rem 0 0.6rem; color: var(--soft); }
.none { color: var(--soft); font-style: italic; }
.tags { list-style: none; display: flex; flex-wrap: wrap; gap: 0.4rem; margin: 0 0 0.75rem; padding: 0; }
.tags li {
  font-size: 0.75rem; padding: 0.05rem 0.6rem; border: 1px solid var(--line); border-radius: 1rem;
  color: var(--soft); background: var(--panel);
}
.facts { display: flex; flex-wrap: wrap; gap: 0.5rem 2rem; margin: 0 0 1.5rem; font-size: 0.875rem; }
.facts dt { color: var(--soft); font-size: 0.75rem; }
.facts dd { margin: 0; font-variant-numeric: tabular-nums; }
.row { display: grid; grid-template-columns: 13rem minmax(0, 40rem); gap: 0 2.75rem; margin-bottom: 0.5rem; }
.label { font-size: 0.875rem; line-height: 1.35; align-self: center; }
.label small, .label code { display: block; }
.label small { color: var(--soft); font-size: 0.75rem; overflow-wrap: anywhere; }
.label code { font-size: 0.72rem; }
.label .legend span::before {
  content: ""; display: inline-block; width: 1rem; margin-right: 0.3rem; vertical-align: middle;
}
.key-red::before { border-top: 4.5px solid var(--red); }
.key-green::before { border-top: 2.75px solid var(--green); }
.key-blue::before { border-top: 1.25px solid var(--blue); }
.legend span { margin-right: 0.4rem; white-space: nowrap; }
.main { margin-bottom: 1rem; }
.main img { height: 4.5rem; }
.tall { margin-bottom: 0.9rem; }
.tall .label { align-self: start; }
.strip { margin-bottom: 0.25rem; }
.strip img { height: 1.5rem; }
.variant img { height: 2.4rem; }
.strip + .variant { margin-top: 1.25rem; }
.strip + .none { margin-top: 1.25rem; }
.plot { display: block; width: 100%; height: auto; overflow: visible; }
.plot text { font-size: 11px; fill: var(--soft); font-variant-numeric: tabular-nums; }
.plot .tick, .plot .last { text-anchor: end; }
.plot .middle { text-anchor: middle; }
.plot .within { fill: var(--panel); }
.plot .beyond { fill: var(--beyond); }
.plot .grid { stroke: var(--line); stroke-width: 1; }
.plot .mark { stroke: var(--mark); stroke-width: 1; stroke-dasharray: 5 3; }
.curve { fill: none; stroke-linejoin: round; stroke-linecap: round; }
.curve.red { stroke: var(--red); stroke-width: 4.5; }
.curve.green { stroke: var(--green); stroke-width: 2.75; }
.curve.blue { stroke: var(--blue); stroke-width: 1.25; }
.curve.lightness { stroke: var(--ink); stroke-width: 1.75; }
.table { overflow-x: auto; margin: 1.5rem 0 0.75rem; }
table { border-collapse: collapse; width: 100%; font-size: 0.875rem; }
th, td { text-align: left; padding: 0.3rem 1rem 0.3rem 0; border-bottom: 1px solid var(--line); font-weight: normal; white-space: nowrap; }
thead th { color: var(--soft); font-size: 0.75rem; }
tbody th { font-weight: 600; }
.number { text-align: right; font-variant-numeric: tabular-nums; }
td.number:last-child, th.number:last-child { padding-right: 0; }
.up { margin: 0.75rem 0 0; font-size: 0.8rem; }
footer { border-top: 1px solid var(--line); margin-top: 3rem; padding-top: 1rem; color: var(--soft); font-size: 0.8rem; }
@media (max-width: 52rem) {
  .row { grid-template-columns: minmax(0, 1fr); }
  .label { margin-bottom: 0.25rem; }
  .view { padding-left: 2.75rem; }
  .plot text { font-size: 18px; }
}
@media print {
  body { max-width: none; padding: 0; }
  section { break-inside: avoid; }
}
)";

}  // namespace workbench
