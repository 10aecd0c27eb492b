#include <VellarkCapture/CaptureHelperMain.hpp>

int main(int argumentCount, char** arguments) {
    return vellark::CaptureHelperMain::main(argumentCount, arguments);
}
