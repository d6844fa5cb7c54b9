// The tables of the end plates: transom, station of maximum beam and pram
// bow, each a section across both sides of the hull on a page of its own.
// They read transomPlate and bowPlate as the end plates' drawing left them.
#pragma once

#include "printing/print_job.h"

namespace tolmar {

// Transom, maximum beam station, and the pram bow when the hull has one.
void printEndTables(PrintJob& job);

}  // namespace tolmar
