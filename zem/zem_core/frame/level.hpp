#pragma once
// The accuracy levels, for cores that are one text at several of them.
namespace ork {

enum class Level { la, ha, ep };

}  // namespace ork
