// The parts of a sheet as markup.
#pragma once

#include <string>
#include <string_view>

#include "Content.h"
#include "Sheet.h"

namespace orve::sheet {

/// The whole sheet. The texts of `options` are plain.
std::string Render(const Content& content, const SheetOptions& options);
/// The texts for the head as `PlainText` gives them.
SheetOptions HeadTexts(const SheetOptions& options);
/// Those of a sheet that was made; empty for what isn't one.
SheetOptions HeadsOf(std::string_view html);

/// The style sheet, with what stands at the head and the foot of each printed page.
std::string StyleOf(const Content& content, const SheetOptions& options);

// Each part is the inside of a section; empty if the case has nothing for it.
std::string CoverPart(const Content& content, const SheetOptions& options);
std::string WarningsPart(const Content& content);
std::string InputsPart(const Content& content);
std::string SitePart(const Content& content);
std::string AreaPart(const Content& content, const AreaZones& area);
std::string DerivationPart(const Content& content, const AreaZones& area);
std::string CantileverPart(const Content& content);
std::string MembersPart(const Content& content);
std::string SourcesPart(const Content& content);

// Small pieces.

/// Rising numbers with runs drawn together, as "4–7, 12".
std::string Ranges(const std::vector<int>& numbers);
/// The marks of warnings behind a number, as a link; empty without any.
std::string MarkMarkup(const Marks& marks);
std::string MarkedMarkup(const Marked& marked);
/// A warning with its number, as the inside of a list item.
std::string WarningMarkup(const Content& content, std::size_t number);
/// The warnings that were marked, below a table.
std::string NotesMarkup(const Content& content, Marks marks);
/// A table: `head` are its cells with scope, `body` its rows. It scrolls on a narrow screen.
std::string TableMarkup(const std::string& caption, const std::string& head, const std::string& body,
                        const char* style = "");
std::string HeadCell(const std::string& markup);
std::string RowHead(const std::string& markup);
std::string Cell(const std::string& markup);
std::string FigureMarkup(const std::string& svg, const std::string& caption);

}  // namespace orve::sheet
