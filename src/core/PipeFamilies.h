// The families of pipe: tables of one layout, a file each in the folder of the data files. A family other
// than the first has other diameters at the same nominal size.
#pragma once

#include <array>

namespace quillmetra {

struct PipeFamily {
    const char* File = "";
    const char* Name = "";
    const char* Note = "";  // what its nominal size stands for, and what its diameters leave out
    const char* Word = "";  // what its pipe is called behind size and schedule; none for steel
};

// Metric sizes are DN / 25, which lists in millimetres as the DN itself.
inline constexpr std::array PipeFamilies = {
    PipeFamily{"W-PIPE.TXT", "Steel, NPS", "From 52 in on the wall stands for the schedule"},
    PipeFamily{"W-METRIC.TXT", "Steel, metric EN 10220", "Size: DN; in inches DN / 25. Schedule: wall in mm"},
    PipeFamily{"W-TUBE.TXT", "Instrument and sanitary tube",
               "Size: outside diameter. Schedule: wall in inches", "tube"},
    PipeFamily{"W-COPPER.TXT", "Copper tube K, L, M", "Outside diameter: 1/8 in over the size", "copper"},
    PipeFamily{"W-DUCT.TXT", "Ductile iron, PC and CL classes", "Unlined; a lining takes 1/8 to 1/4 in off",
               "ductile iron"},
    PipeFamily{"W-DUCTM.TXT", "Ductile iron, metric K9", "Size: DN; in inches DN / 25. Unlined",
               "ductile iron"},
    PipeFamily{"W-PVC.TXT", "PVC and CPVC, schedules and SDR", "Minimum walls", "PVC"},
    PipeFamily{"W-PVCW.TXT", "PVC waterworks", "Cast iron diameters, minimum walls", "PVC"},
    PipeFamily{"W-HDPE.TXT", "HDPE, IPS sizes", "Minimum walls", "HDPE"},
    PipeFamily{"W-HDPEM.TXT", "HDPE, metric", "Size: outside diameter in mm; in inches that / 25", "HDPE"},
};

}  // namespace quillmetra
