// Reads sheets back: their markup, tables and texts.
#pragma once

#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "support/FakeComponents.h"

namespace orve::test {

/// A table by its caption: the texts of its rows, heads excepted, each cell without marks of warnings.
struct SheetTable {
  std::string caption;
  std::vector<std::vector<std::string>> rows;
};

/// The text of markup: tags out, powers as "^2", marks of warnings and small print left out.
std::string PlainText(const std::string& markup);
/// What stands between two texts, each time.
std::vector<std::string> Between(const std::string& text, const std::string& from, const std::string& to);
std::vector<SheetTable> TablesOf(const std::string& html);
/// The rows of the table with a caption; none if there is no such table.
std::vector<std::vector<std::string>> RowsOf(const std::string& html, const std::string& caption);
/// What is wrong with the markup: tags that don't close, ids met twice, links to nowhere, texts that a page
/// would load from elsewhere. Empty if it is sound.
std::string FaultsOf(const std::string& html);

bool Has(const std::string& text, const std::string& part);

/// A root object on the built-in engines with the sites of the project, its settings in a private folder.
class SheetCase : public ::testing::Test {
 protected:
  SheetCase();
  ~SheetCase() override;

  PrivateFolder folder;
  std::shared_ptr<clsCurrentCase> root;
};

}  // namespace orve::test
