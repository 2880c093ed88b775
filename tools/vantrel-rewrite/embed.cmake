# Writes a C++ source with a file's bytes in it: cmake -D FROM=FILE -D TO=SOURCE -P embed.cmake
file(READ ${FROM} bytes HEX)
string(REGEX REPLACE "(..)" "0x\\1," bytes "${bytes}")
file(WRITE ${TO} "#include \"count_classes.h\"\n
namespace vantrel_rewrite {\n
const unsigned char kCountClasses[] = {${bytes}};
const std::size_t kCountClassesSize = sizeof kCountClasses;\n
}  // namespace vantrel_rewrite\n")
