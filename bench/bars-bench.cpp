#include "painting.h"
#include "visuals/bar-scan-result-plot.h"

int main(int argc, char **argv) {
    reportPainting<BarScanResultPlot>("bars", 1, argc, argv);
}
