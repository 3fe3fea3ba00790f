// The style sheet of reports. Colours have a contrast of at least 4.5 to 1 against what they stand
// on, in both schemes; nothing is shown by colour alone.
#pragma once

#include <string_view>

namespace tesselctl {

inline constexpr std::string_view kReportStyle = R"(
:root{color-scheme:light dark;--page:#f4f6f9;--card:#fff;--ink:#17202c;--soft:#545f70;
--line:#d8dee8;--track:#e6eaf1;--fill:#2f6fde;--full:#b3470b;--idle:#8b95a5;--good:#17743a;
--bad:#b42331;--link:#1d5bc4}
@media(prefers-color-scheme:dark){:root{--page:#0f141b;--card:#18202a;--ink:#e7ecf3;--soft:#a3afbf;
--line:#2d3846;--track:#26303d;--fill:#5b9bff;--full:#f0914f;--idle:#6d7988;--good:#5ed08a;
--bad:#ff8189;--link:#86b5ff}}
*{box-sizing:border-box}
body{margin:0 auto;max-width:70rem;padding:1.25rem 1rem 3rem;background:var(--page);
color:var(--ink);font:16px/1.5 system-ui,sans-serif;-webkit-text-size-adjust:100%}
h1,h2,h3,h4,p,dl,dd,ul,figure{margin:0;padding:0}
h1{font-size:1.6rem;line-height:1.25;overflow-wrap:anywhere}
h2{font-size:1.2rem;margin-bottom:.6rem}
h3,h4{font-size:1rem;overflow-wrap:anywhere}
h4{font-size:.9375rem}
a{color:var(--link)}
.soft,small{color:var(--soft);font-size:.875rem}
.kicker{color:var(--soft);font-weight:600;letter-spacing:.03em}
nav{display:flex;flex-wrap:wrap;gap:.25rem 1rem;margin:.75rem 0 1rem}
nav a{padding:.2rem 0}
section{background:var(--card);border:1px solid var(--line);border-radius:.75rem;
padding:1rem;margin-bottom:1rem}
.tiles{display:grid;grid-template-columns:repeat(auto-fit,minmax(8.5rem,1fr));gap:.75rem}
.tiles div{display:flex;flex-direction:column;border:1px solid var(--line);border-radius:.6rem;
padding:.6rem .75rem}
.tiles dt{color:var(--soft);font-size:.875rem}
.tiles dd.big{font-size:1.5rem;font-weight:650;line-height:1.25;order:-1}
.tiles dd{color:var(--soft);font-size:.875rem;font-variant-numeric:tabular-nums}
.tiles dd.big{color:var(--ink)}
.alert{border-left:.35rem solid var(--full)}
.alert ul{padding-left:1.1rem}
table{border-collapse:collapse;width:100%;font-size:.9375rem}
th{text-align:left;font-weight:600;vertical-align:top}
thead>tr>*{color:var(--soft);font-size:.8125rem;border-bottom:1px solid var(--line)}
th,td{padding:.35rem .5rem .35rem 0;vertical-align:top;overflow-wrap:anywhere}
th:last-child,td:last-child{padding-right:0}
tbody tr+tr>*{border-top:1px solid var(--line)}
thead th{overflow-wrap:normal;white-space:nowrap}
tbody th{font-weight:500}
.n{text-align:right;font-variant-numeric:tabular-nums;overflow-wrap:normal;white-space:nowrap}
.mono{font:.84375rem/1.5 ui-monospace,monospace}
.wide{width:34%}
svg{display:block;width:100%}
.bar{height:.6rem;margin-top:.4rem;border-radius:.2rem}
.track{fill:var(--track)}
.fill{fill:var(--fill)}
.full{fill:var(--full)}
.idle{fill:var(--idle)}
.free{fill:var(--track)}
.chart{height:8rem;border-bottom:1px solid var(--idle)}
.axis{position:relative;height:1.4rem;font-size:.8125rem;color:var(--soft);margin-bottom:.25rem}
.axis span{position:absolute;transform:translateX(-50%)}
.axis span:first-child{left:0;transform:none}
.axis span:nth-child(2){left:25.5%}
.axis span:nth-child(3){left:50%}
.axis span:nth-child(4){left:74.5%}
.axis span:last-child{left:auto;right:0;transform:none}
.cards{display:grid;grid-template-columns:repeat(auto-fill,minmax(min(19rem,100%),1fr));gap:1rem}
.card{border:1px solid var(--line);border-radius:.6rem;padding:.75rem;min-width:0}
.part+.part{margin-top:1.25rem}
.part>h3+*{margin-bottom:.4rem}
.part>h4{margin-top:.75rem}
th small{font-weight:400;margin-left:.15rem}
th a{margin-right:.35rem}
br+small{margin-left:0!important}
.on{color:var(--good)}
.off{color:var(--bad)}
details{border-top:1px solid var(--line)}
details:first-of-type{border-top:0}
details details{border:0}
summary{cursor:pointer;padding:.5rem 0;overflow-wrap:anywhere}
summary .n{color:var(--soft);margin-left:.5rem}
details[open]{padding-bottom:.75rem}
.lines{list-style:none;border-left:2px solid var(--line);padding-left:.6rem}
.lines li{overflow-wrap:anywhere;padding:.1rem 0}
.lines b{display:inline-block;width:1rem}
#tools{display:flex;flex-wrap:wrap;align-items:center;gap:.5rem .75rem;margin-bottom:1rem}
#tools[hidden],[hidden]{display:none}
#tools label{white-space:nowrap}
#tools p{flex-basis:100%}
#news{color:var(--ink)}
button,input,select{font:inherit;color:inherit;background:var(--card);border:1px solid var(--idle);
border-radius:.4rem;padding:.25rem .5rem}
thead button{border:0;padding:0;background:none;font-weight:600;cursor:pointer}
thead button::after{content:" \2195";font-weight:400}
[aria-sort=ascending] button::after{content:" \2191"}
[aria-sort=descending] button::after{content:" \2193"}
.rate{display:block}
.flag{color:var(--full);font-weight:600}
:focus-visible{outline:2px solid var(--link);outline-offset:2px}
@media(max-width:30rem){body{padding:1rem .75rem 2rem}section{padding:.85rem .75rem}
table{font-size:.875rem}.wide{width:20%}}
@media print{body{background:#fff}section{break-inside:avoid}}
)";

}  // namespace tesselctl
