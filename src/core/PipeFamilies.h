// The families of pipe: tables of one layout, a file each in the folder of the data files. A family other
// than the first has other diameters at the same nominal size.
#pragma once

#include <array>

namespace quillmetra {

struct PipeFamily {
    const char* File;
    const char* Name;
    const char* Note;  // what its nominal size stands for, and what its diameters leave out
};

// Metric sizes are DN / 25, which lists in millimetres as the DN itself.
inline constexpr std::array PipeFamilies = {
    PipeFamily{"W-PIPE.TXT", "Steel, NPS", "From 52 in on the wall stands for the schedule"},
    PipeFamily{"W-METRIC.TXT", "Steel, metric EN 10220", "Size: DN; in inches DN / 25. Schedule: wall in mm"},
    PipeFamily{"W-TUBE.TXT", "Instrument and sanitary tube",
               "Size: outside diameter. Schedule: wall in inches"},
    PipeFamily{"W-COPPER.TXT", "Copper tube K, L, M", "Outside diameter: 1/8 in over the size"},
    PipeFamily{"W-DUCT.TXT", "Ductile iron, PC and CL classes", "Unlined; a lining takes 1/8 to 1/4 in off"},
    PipeFamily{"W-DUCTM.TXT", "Ductile iron, metric K9", "Size: DN; in inches DN / 25. Unlined"},
    PipeFamily{"W-PVC.TXT", "PVC and CPVC, schedules and SDR", "Minimum walls"},
    PipeFamily{"W-PVCW.TXT", "PVC waterworks", "Cast iron diameters, minimum walls"},
    PipeFamily{"W-HDPE.TXT", "HDPE, IPS sizes", "Minimum walls"},
    PipeFamily{"W-HDPEM.TXT", "HDPE, metric", "Size: outside diameter in mm; in inches that / 25"},
};

}  // namespace quillmetra
