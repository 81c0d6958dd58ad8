#include "strings/string_table.h"
#include "window/frame/application.h"

int main(int argc, char** argv) {
    return tarnel::runApplication(argc, argv, tarnel::germanTable());
}
