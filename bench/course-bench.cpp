#include "painting.h"
#include "visuals/freq-plot.h"

int main(int argc, char **argv) {
    reportPainting<FreqPlot>("course", 2, argc, argv);
}
