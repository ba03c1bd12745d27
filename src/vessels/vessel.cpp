#include "sizewright/vessels/vessel.h"

#include "sizewright/host/text.h"

namespace sizewright {

const CVesObj::Road& CVesObj::road() const {
  using V = CVesObj;
  static constexpr Road kAgitated = {&V::vsinp_agvs, &V::vsinp_agvs_get_des, &V::agvs_siz,
                                     &V::agvs_write_rep};
  static constexpr Road kSphere = {&V::vsinp_storage, &V::vsinp_storage_get_des, &V::st_sp,
                                   &V::st_sp_write_results};
  static constexpr Road kSpheroid = {&V::vsinp_storage, &V::vsinp_storage_get_des, &V::spheroid,
                                     &V::spheroid_write_results};
  static constexpr Road kStorage = {&V::vsinp_storage, &V::vsinp_storage_get_des, &V::stor_vs,
                                    &V::stor_vs_write_results};
  static constexpr Road kProcess = {&V::vsinp_proc_vs, &V::vsinp_proc_vs_get_des, &V::proc_vs,
                                    &V::proc_vs_write_results};
  if (categoryIs({"DAT", "EAT"})) return kAgitated;
  if (itemIs({"SPHERE"})) return kSphere;
  if (itemIs({"SPHEROID"})) return kSpheroid;
  if (itemIs({"STORAGE", "GAS HOLDER", "PLAST TANK", "WOOD TANK", "CONE BTM", "LIVE BTM"})) {
    return kStorage;
  }
  return kProcess;
}

bool CVesObj::isHorizontal() const {
  return categoryIs({"DHT"});
}

int CVesObj::Size() {
  GetDesCriteriaInfo();
  if (GetStreamInfo() == 0) return 0;
  return vs_design_vardex_sizing_expert();
}

int CVesObj::vs_design_vardex_sizing_expert() {
  if (vsstream() == 0) return 0;
  return (this->*road().size)();
}

int CVesObj::GetLastInfo() {
  vs_main_get_user_input_from_add_module_screen();
  if (GetProjObjectInfo() != 0) vsinp_get_process_info();
  GetDesCriteriaInfo();
  GetStreamInfo();
  return 1;
}

void CVesObj::vsinp_get_process_info() {
  if (projectObject != nullptr && projectObject->IsValid() != 0) (this->*road().information)();
}

void CVesObj::GetDesCriteriaInfo() {
  (this->*road().criteria)();
}

int CVesObj::SaveParameters() {
  (this->*road().write)();
  return 1;
}

}  // namespace sizewright
