// A program for batch-file tests: writes one line for each of its arguments after the first into
// the file the first names. An argument that names a readable file is written as "file:" and that
// file's contents, so a test can tell that a path reached the program in a form it can open, on
// every host alike.
#include <fstream>
#include <sstream>

int main(int argc, char** argv) {
    if (argc < 2) return 2;
    std::ofstream out(argv[1], std::ios::binary | std::ios::trunc);
    for (int i = 2; i < argc; ++i) {
        std::ifstream in(argv[i], std::ios::binary);
        std::ostringstream contents;
        if (in) contents << in.rdbuf();
        if (in)
            out << "file:" << contents.str() << "\n";
        else
            out << argv[i] << "\n";
    }
    return out ? 0 : 1;
}
