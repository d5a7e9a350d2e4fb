// The pages of a report as bitmap files in the temp folder: prv1.tmp, prv2.tmp and so on.
#pragma once

#include <cstdint>
#include <filesystem>

#include "forms/picture.h"

namespace report {

std::filesystem::path PageFile(std::int16_t PageNum);

// Writes a page, replacing any of the same number, and creates the folder if necessary. FileAccess
// if it cannot be written, InvalidCall for an empty raster.
void SavePage(std::int16_t PageNum, const forms::Raster& raster);

// Reads a page as a picture in twips. FileNotFound if it does not exist, FileAccess if it cannot be
// read, InvalidCall if it is not a bitmap file.
forms::PicturePtr LoadPage(std::int16_t PageNum);

// Deletes all ".tmp" files in the folder; ignores failures.
void DeletePages();

}  // namespace report
