// Records and rows of records on their way out; built on the generated conversions.
#pragma once

#include <cstdlib>
#include <new>

#include "generated/Types.h"

namespace orve::c {

/// Fills a C record; if a text of it can't be had, frees the others.
template <class CRecord, class Record>
void Give(CRecord* result, const Record& value) {
  CRecord filled{};
  try {
    Fill(filled, value);
  } catch (...) {
    FreeRecord(filled);
    throw;
  }
  *result = filled;
}

template <class CRecord, class Record>
void GiveRows(CRecord** rows, std::size_t* count, const std::vector<Record>& values) {
  // An empty table still gives an array that can be freed.
  auto* filled = static_cast<CRecord*>(std::calloc(values.empty() ? 1 : values.size(), sizeof(CRecord)));
  if (filled == nullptr) throw std::bad_alloc();
  try {
    for (std::size_t i = 0; i < values.size(); ++i) Fill(filled[i], values[i]);
  } catch (...) {
    for (std::size_t i = 0; i < values.size(); ++i) FreeRecord(filled[i]);
    std::free(filled);
    throw;
  }
  *rows = filled;
  *count = values.size();
}

}  // namespace orve::c
