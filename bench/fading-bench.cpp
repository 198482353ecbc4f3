#include "painting.h"
#include "visuals/hist-view.h"

int main(int argc, char **argv) {
    reportPainting<HistView>("fading-picture", 2, argc, argv);
}
