// The style sheet: A4 on paper, one column on a screen.
#include "Html.h"
#include "Parts.h"

namespace orve::sheet {

namespace {

constexpr const char* kStyle = R"(:root{color-scheme:light}
*{box-sizing:border-box}
body{margin:0 auto;padding:1rem;max-width:60rem;font:.9rem/1.4 "Liberation Sans","DejaVu Sans",Arial,sans-serif;color:#000;background:#fff}
h1{margin:.1rem 0 .8rem;font-size:1.7rem}
h2{margin:0 0 .5rem;padding-bottom:.2rem;border-bottom:2px solid #000;font-size:1.15rem;break-after:avoid}
section{margin-top:2rem}
a{color:inherit;text-decoration:none}
nav a:hover,sup a:hover{text-decoration:underline}
nav ol{margin:0;padding-left:1.5rem}
nav h2{border:0;font-size:1rem;margin:1rem 0 .2rem}
.k{margin:0;letter-spacing:.08em;text-transform:uppercase;font-size:.8rem}
.n{float:right;margin:.2rem 0;font-size:.8rem}
.f{margin:0 0 1rem;border:1.5px solid #000}
.f div{display:inline-block;width:33.33%;padding:.25rem .5rem;vertical-align:top;border-bottom:1px solid #999}
.f .wide{width:100%;display:block}
.f .wide:last-child{border:0}
dt{font-size:.72rem;color:#333}
dd{margin:0;font-weight:bold}
.mono dd{font:.74rem/1.5 "Liberation Mono","DejaVu Sans Mono",monospace;overflow-wrap:anywhere}
.t{overflow-x:auto;margin:0 0 .8rem}
table{border-collapse:collapse;width:100%;font-size:.78rem;line-height:1.25}
.slim{display:inline-block;vertical-align:top;margin-right:1.2rem}
.slim table{width:auto}
caption{text-align:left;font-weight:bold;padding:.3rem 0;break-after:avoid}
th,td{border:.5px solid #777;padding:.12rem .35rem;text-align:left;vertical-align:top}
th{font-weight:normal}
thead th{background:#eee;font-weight:bold}
thead{display:table-header-group}
tr{break-inside:avoid}
.num td,.num tbody th{white-space:nowrap}
.num td{text-align:right}
.num thead th{text-align:center;white-space:nowrap}
.o{font-weight:bold}
.s td,.s th{height:2.1rem;vertical-align:middle}
.s tbody th{width:14%}.s td:last-child{width:16%}.s td:nth-child(2){width:32%}
.in td:nth-child(2){text-align:right;font-weight:bold}
.d th:first-child{width:3.2em;text-align:right}
.d td:nth-child(2){width:25%}
.d td:nth-child(4){width:6.5em}
.d td:nth-child(5){width:6.5em;border-left:2px solid #000}
.d small{color:#333}
i{font-family:"Liberation Serif","DejaVu Serif",serif;font-size:1.08em}
sub,sup{font-size:.72em;line-height:0}
sup a{font-weight:bold;font-size:.95em}
abbr{text-decoration:none}
figure{display:inline-block;margin:0 0 .6rem;vertical-align:top;break-inside:avoid;max-width:100%}
figcaption{font-size:.78rem;text-align:center}
svg{display:block;max-width:100%;height:auto;margin:0 auto}
.figs{text-align:center}
.key{font-size:.78rem;margin:.2rem 0 .6rem}
.w{margin:0 0 .8rem;padding:.15rem .5rem;border-left:3px solid #000;list-style:none;font-size:.74rem;line-height:1.3;break-inside:avoid}
.wl{list-style:none;padding:0}
.wl li{margin-bottom:.35rem;padding-left:2.6rem;text-indent:-2.6rem}
.wl b{display:inline-block;width:2.6rem;text-indent:0}
.note{border:1.5px solid #000;padding:.4rem .6rem}
@media(max-width:40rem){.f div{width:100%;display:block}body{padding:.6rem}}
.w li{break-inside:avoid}
@media(min-width:50rem){.w{columns:2;column-gap:1.2rem}}
@media print{.w{columns:2;column-gap:5mm}html{font-size:13.5px}section{orphans:1;widows:1}body{padding:0;max-width:none}.t{overflow:visible}.n{display:none}section{margin-top:6mm}.page{break-before:page;margin-top:0}.t,.tone,.face{break-inside:avoid}.t.d{break-inside:auto}.cols{columns:2;column-gap:6mm}.cols .t{break-inside:avoid}}
)";

// Head and foot of each page; where a browser has no such boxes it prints its own page numbers.
std::string PageStyle(const std::string& head, const std::string& state) {
  return "@page{size:A4;margin:21mm 15mm 18mm;font:8pt \"Liberation Sans\",\"DejaVu Sans\",Arial,sans-serif;"
         "@top-left{content:" +
         StyleString(head) +
         ";width:72%;text-align:left;border-bottom:.5pt solid #000;"
         "margin-bottom:4mm;vertical-align:bottom;font-size:8pt}"
         "@top-right{content:" +
         StyleString("Wind loads to BS 6399-2") +
         ";width:28%;text-align:right;"
         "border-bottom:.5pt solid #000;margin-bottom:4mm;vertical-align:bottom;font-size:8pt}"
         "@bottom-left{content:" +
         StyleString(state) +
         ";width:72%;text-align:left;vertical-align:top;padding-top:3mm;font-size:8pt}"
         "@bottom-right{content:\"Sheet \" counter(page) \" of \" counter(pages);width:28%;text-align:right;"
         "vertical-align:top;padding-top:3mm;font-weight:bold;font-size:8pt}}\n";
}

void Append(std::string& text, const std::string& part) {
  if (part.empty()) return;
  if (!text.empty()) text += " \u00B7 ";
  text += part;
}

}  // namespace

std::string StyleOf(const Content& content, const SheetOptions& options) {
  constexpr std::size_t digits = 16;
  std::string head;
  Append(head, options.project);
  Append(head, content.description);
  std::string state;
  if (!options.revision.empty()) Append(state, "Revision " + options.revision);
  Append(state, options.date);
  Append(state, content.version);
  Append(state, "digest " + content.digest.substr(0, digits));
  return kStyle + PageStyle(head, state);
}

}  // namespace orve::sheet
