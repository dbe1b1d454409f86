// The generators: each gives the whole text of one file of a binding or of the documents.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "Description.h"

namespace orve::automation {

/// A generated file: its path under the project's root, and its text.
struct GeneratedFile {
  std::string path;
  std::string text;
};

/// Every generated file that is kept with the sources.
std::vector<GeneratedFile> GeneratedFiles();

// The C binding.
std::string CHeader();
/// Functions of a class; of the enumerations and records.
std::string CClassBody(const ClassDescription& description);
std::string CTypesBody();
std::string CTypesHeader();
/// Every function that the C library exports, sorted, one a line.
std::string CExports();
/// C99 source of a table that calls every function of the C library with arguments and results as texts.
std::string CCallTable();

/// Stub file of the Python module.
std::string PythonStub();
/// Interface description of the COM library; the COM object of a class, each method one call by number; and
/// the table that makes them.
std::string ComInterface();
std::string ComObjectBody(const ClassDescription& description);
std::string ComClassTable();
/// Manifest by which a host uses the COM library without registration; version and architecture are left
/// open.
std::string ComManifest();

// The reference pages.
std::string ReferenceIndex();
std::string ReferenceClassPage(const ClassDescription& description);
std::string ReferenceTypesPage();

// What the generators share.
std::string Join(const std::vector<std::string>& parts, std::string_view separator);
/// The line that stands at the head of a generated file, behind a comment sign.
inline constexpr std::string_view GeneratedNote =
    "Written by orve_generate from the description of the object model; don't edit it by hand.";

// The C binding's names and types.
std::string CTypeName(const Type& type);
std::string CFunctionName(const ClassDescription& description, std::string_view verb,
                          std::string_view member);
std::string CGetName(const ClassDescription& description, const MemberDescription& member);
std::string CLetName(const ClassDescription& description, const MemberDescription& member);
/// Every function of a class as declaration, without the closing semicolon.
std::vector<std::string> CDeclarations(const ClassDescription& description);
std::string CGetDeclaration(const ClassDescription& description, const MemberDescription& member);
std::string CLetDeclaration(const ClassDescription& description, const MemberDescription& member);
std::string CConnectDeclaration(const ClassDescription& description, const EventDescription& event);

}  // namespace orve::automation
