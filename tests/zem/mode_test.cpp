// Mode word, environment variable, status, callback pointer.
#include <cstdlib>
#include <thread>

#include "support/control.hpp"
#include "support/pch.hpp"

namespace {

// What a fresh thread finds with the variable set to `value` (null: not set).
template <class F>
auto on_fresh_thread(const char* value, F f) {
  if (value)
    setenv("ORK_ZEM_MODE", value, 1);
  else
    unsetenv("ORK_ZEM_MODE");
  decltype(f()) result{};
  std::thread([&] { result = f(); }).join();
  unsetenv("ORK_ZEM_MODE");
  return result;
}

std::string repeated(const char* token, int times) {
  std::string value = token;
  for (int i = 1; i < times; ++i) value += std::string(",") + token;
  return value;
}

TEST(Mode, EnvironmentGivesFirstWord) {
  const struct {
    const char* value;
    uint32_t mode;
  } cases[] = {
      {nullptr, 0x1A02},
      {"", 0x1A02},
      {"HA", 0x1A02},
      {"ZEM_LA", 1},
      {"ZEM_HA", 2},
      {"ZEM_EP", 3},
      {"ZEM_EP,ZEM_ERRMODE_ERRNO", 0x203},
      {"ZEM_ERRMODE_DEFAULT,ZEM_LA", 0x1A01},
      {"ZEM_LA,ZEM_HA", 3},
      {"ZEM_FLOAT_CONSISTENT", 0x10},
      {"ZEM_DOUBLE_CONSISTEN", 0x20},
      {"ZEM_DOUBLE_CONSISTENT", 0x1A02},
      {"ZEM_RESTORE", 0x30},
      {"ZEM_ERRMODE_IGNORE,ZEM_ERRMODE_STDERR,ZEM_ERRMODE_EXCEPT,ZEM_ERRMODE_CALLBACK", 0x1D00},
      {"ZEM_HA,", 0x1A02},
      {"ZEM_HA,ZEM_", 0x1A02},
      {"ZEM_HA,HA", 0x1A02},
      {"ZEM_HAX", 0x1A02},
      {"ZEM_HA ,ZEM_LA", 0x1A02},
      {"ZEM_LA,ZEM_XX", 0x1A02},
      {"zem_ha", 0x1A02},
      // Read as zero: the word stays uninitialised.
      {"ZEM_DEFAULT_PRECISION", 0},
  };
  for (const auto& c : cases)
    EXPECT_EQ(on_fresh_thread(c.value, ork_zem_kernel_GetMode), c.mode)
        << (c.value ? c.value : "(unset)");
}

TEST(Mode, TokensEndBeforeOffset256) {
  // A token of 2 letters fits at offset p when 2 + p + 4 < 256: p = 245 is the 36th at most.
  EXPECT_EQ(on_fresh_thread(repeated("ZEM_EP", 36).c_str(), ork_zem_kernel_GetMode), 3u);
  EXPECT_EQ(on_fresh_thread(repeated("ZEM_EP", 37).c_str(), ork_zem_kernel_GetMode), 0x1A02u);
}

TEST(Mode, ZeroWordIsReadAgain) {
  setenv("ORK_ZEM_MODE", "ZEM_DEFAULT_PRECISION", 1);
  std::thread([] {
    EXPECT_EQ(ork_zem_kernel_GetMode(), 0u);
    EXPECT_EQ(ork_zem_kernel_GetTTableIndex(), -1);
    EXPECT_EQ(ork_zem_kernel_ReadEnvVarMode(), 0);
    setenv("ORK_ZEM_MODE", "ZEM_LA", 1);
    EXPECT_EQ(ork_zem_kernel_GetMode(), 1u);
    setenv("ORK_ZEM_MODE", "ZEM_EP", 1);
    EXPECT_EQ(ork_zem_kernel_GetMode(), 1u) << "an initialised word stays";
    EXPECT_EQ(ork_zem_kernel_ReadEnvVarMode(), 3);
  }).join();
  unsetenv("ORK_ZEM_MODE");
  EXPECT_EQ(ork_zem_kernel_ReadEnvVarMode(), -1);
}

TEST(Mode, FieldsChangeOneByOneAndNeverToZero) {
  std::thread([] {
    const struct {
      uint32_t set, before, after;
    } steps[] = {
        {0, 0x1A02, 0x1A02},
        {0x10, 0x1A02, 0x1A02},
        {0xFFC300F0u & ~0xFFFF0Fu, 0x1A02, 0x1A02},
        {0x3, 0x1A02, 0x1A03},
        {0x1000, 0x1A03, 0x1003},
        {0x140000, 0x1003, 0x141003},
        {0x280000, 0x141003, 0x281003},
        {0x0100, 0x281003, 0x280103},
        {0x141A02, 0x280103, 0x141A02},
    };
    for (const auto& s : steps) {
      EXPECT_EQ(ork_zem_kernel_SetMode(s.set), s.before);
      EXPECT_EQ(_zemGetMode(), s.after);
    }
    EXPECT_EQ(_zemSetMode(0x1), 0x141A02u);
    EXPECT_EQ(ork_zem_kernel_GetTTableIndex(), 0);
    EXPECT_EQ(ork_zem_kernel_GetTTableIndexM(0x1A03, 0x1A02), 1);
  }).join();
}

int32_t nothing(ork_error_record*) { return 0; }

TEST(Mode, CallbackPointerCarriesItsBit) {
  std::thread([] {
    EXPECT_EQ(ork_zem_kernel_SetErrorCallBack(nothing), nullptr);
    EXPECT_EQ(ork_zem_kernel_GetMode(), 0x1A02u);
    EXPECT_EQ(_zemGetErrorCallBack(), nothing);
    EXPECT_EQ(ork_zem_kernel_ClearErrorCallBack(), nothing);
    EXPECT_EQ(ork_zem_kernel_GetMode(), 0x0A02u);
    ork_zem_kernel_SetMode(0x1000);
    _zemSetErrorCallBack(nothing);
    EXPECT_EQ(_zemClearErrorCallBack(), nothing);
    EXPECT_EQ(ork_zem_kernel_GetMode(), 0x1002u) << "the field's only bit cannot be cleared";
    EXPECT_EQ(ork_zem_kernel_GetErrorCallBack(), nullptr);
  }).join();
}

TEST(Mode, StatusIsPerThreadAndReturnsThePreviousOne) {
  std::thread([] {
    EXPECT_EQ(ork_zem_kernel_GetErrStatus(), 0);
    EXPECT_EQ(ork_zem_kernel_SetErrStatus(3), 0);
    EXPECT_EQ(_zemSetErrStatus(-2), 3);
    EXPECT_EQ(_zemGetErrStatus(), -2);
    std::thread([] {
      EXPECT_EQ(ork_zem_kernel_GetErrStatus(), 0);
      EXPECT_EQ(ork_zem_kernel_GetErrorCallBack(), nullptr);
    }).join();
    EXPECT_EQ(ork_zem_kernel_ClearErrStatus(), -2);
    EXPECT_EQ(_zemClearErrStatus(), 0);
  }).join();
  int x;
  EXPECT_EQ(ork_zem_kernel_SetInterfInputVectorPointer(&x), &x);
  EXPECT_EQ(_zemSetInterfInputVectorPointer(nullptr), nullptr);
  EXPECT_EQ(dll_cpu_version(), 0);
}

TEST(Mode, TokenTable) {
  EXPECT_STREQ(mapModeS_N[5].token, "DOUBLE_CONSISTEN");
  EXPECT_STREQ(mapModeS_N[12].token, "ERRMODE_DEFAULT");
  for (const auto& row : mapModeS_N) {
    EXPECT_EQ(row.length, int(strlen(row.token)));
    EXPECT_EQ(row.high, 0u);
  }
}

}  // namespace
