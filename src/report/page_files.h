// The pages of a report as bitmap files in the temp folder, prv1.tmp, prv2.tmp and so on.
#pragma once

#include <cstdint>
#include <filesystem>

#include "forms/picture.h"

namespace report {

// Where a page is kept.
std::filesystem::path PageFile(std::int16_t PageNum);

// Writes a page over a former one of its number; makes the folder where it has no files. FileAccess
// where it cannot be written, InvalidCall for no dots.
void SavePage(std::int16_t PageNum, const forms::Raster& dots);

// The page as a picture in twips. FileNotFound where there is none, FileAccess where it cannot be
// read, InvalidCall where it is no bitmap file.
forms::PicturePtr LoadPage(std::int16_t PageNum);

// Deletes every file of the folder that ends in ".tmp"; one that cannot be deleted stays.
void DeletePages();

}  // namespace report
