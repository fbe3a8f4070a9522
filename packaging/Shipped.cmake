# How released programs are built: hardened, and without paths of the build machine.
# Fortifying works in optimised builds only. Nothing interposes the functions of our libraries, so they
# may be inlined although their code is position-independent.

include(CheckPIESupported)
check_pie_supported(LANGUAGES CXX)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

target_compile_options(tephrex_flags INTERFACE
  "$<$<CONFIG:Release,RelWithDebInfo,MinSizeRel>:\
-fno-semantic-interposition;-fstack-protector-strong;-fstack-clash-protection;-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=3>"
  -ffile-prefix-map=${PROJECT_BINARY_DIR}=build -ffile-prefix-map=${PROJECT_SOURCE_DIR}=.)
target_link_options(tephrex_flags INTERFACE -Wl,-z,relro -Wl,-z,now)
