#pragma once

#include "field3d/format/nifti_source.hpp"
#include "field3d/raster/raster.hpp"
#include "field3d/raster/rgb.hpp"

// NIfTI-1 and Analyze files. The plain and the gzip forms are one implementation.
namespace morvane {
// False: a side is longer than a header can hold, which has been told.
[[nodiscard]] bool FITS_NIFTI(const VECTORNAT &size);

// A NIfTI file under way: the header first, then the data in order. Nothing replaces an old file
// before DONE has succeeded.
class NIFTI_TARGET {
public:
    // `.nii`, `.nii.gz`, or the pair `.hdr` with `.img`, by extension; data start and magic of the
    // header are set to fit. False: told by the file layer, or the size doesn't fit a header.
    bool OPEN(const UTF16 &name, const NIFTI_KIND &kind, const VECTORNAT &size, const FRAME &frame);
    // In blocks of at most 16,777,215 bytes, one progress step each; `label` is the progress title.
    bool WRITE(const UTF16 &label, const void *bytes, NAT count);
    bool DONE(); // closes the progress; false: told by IOERROR, the old file stands

private:
    FILE_WRITE data, header;
    bool pair = false;
    NAT written = 0, total = 1; // bytes of the data
};

// Readers of the three widths: replace the field. A failure prints one line and leaves it empty. An
// empty name does nothing.
template <class VOXEL>
void LOADNII(RASTER<VOXEL> &field, const UTF16 &name, NAT stack, NAT filterOffset,
             NAT filterFactor);
template <class VOXEL>
void LOADNII_GZ(RASTER<VOXEL> &field, const UTF16 &name, NAT stack, NAT filterOffset,
                NAT filterFactor);

// Writers: the extension is appended when it is missing. False: nothing was written, which has
// been told.
template <class FIELD> bool SAVENII(const FIELD &field, const UTF16 &name);
template <class FIELD> bool SAVENII_GZ(const FIELD &field, const UTF16 &name);
template <class FIELD> bool SAVEHDR(const FIELD &field, const UTF16 &name);
// By extension: hdr, nii, nii.gz; any other prints a line and gives false.
template <class FIELD> bool SAVE(const FIELD &field, const UTF16 &name);
} // namespace morvane
