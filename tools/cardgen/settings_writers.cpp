// The SETTING folder a camera of each model leaves on its card.

#include <filesystem>
#include <fstream>
#include <system_error>

#include "cardgen/card_plan.h"
#include "core/settings/krt/krt_setting_manager.h"
#include "core/settings/m420/m420_model_types.h"
#include "core/settings/m420/m420_setting_manager.h"
#include "core/settings/m420/setting_time_file.h"

namespace tarvik::cardgen {

namespace fs = std::filesystem;

namespace {

bool writeText(const fs::path& p, const std::string& text) {
    std::error_code ec;
    fs::create_directories(p.parent_path(), ec);
    std::ofstream out(p, std::ios::binary);
    out << text;
    return static_cast<bool>(out);
}

// A Q260 card: the line file only, as the camera writes it.
std::string blackboxFile() {
    return "[capacity]\r\nconst=60\r\nevent=22\r\nmanual=9\r\npark=4\r\n"
           "[blackbox]\r\nfront_led=1\r\nmodel=Q260\r\nversion=1.0.4\r\npark_mode=1\r\npower_off_vlt=12000\r\n"
           "language=us\r\nlocal_time=9.000000\r\nsummer_time=0\r\nosd_speed=1\r\nmic_in=1\r\nvoice_out=1\r\n"
           "voice_volume=3\r\nacc_level=3\r\nmotion_level=2\r\n[time]\r\nset=0";
}

}  // namespace

int demoModelType() { return static_cast<int>(m420model::M640); }

bool writeSettingsFiles(const fs::path& root, int modelType, std::string* error) {
    auto fail = [&](const std::string& what) {
        if (error) *error = what;
        return false;
    };
    const fs::path setting = root / "SETTING";
    if (modelType == m420model::Q260) {
        if (!writeText(setting / "blackbox.cfg", blackboxFile())) return fail("could not write blackbox.cfg");
        return true;
    }

    M420SettingManager m;
    m.setSettingDirPath(root.string());
    m.setModelType(modelType);
    m.setFirmwareVersionInt(17);  // the Q810 pair's longer record
    if (modelType == m420model::Q810UK) m.setLocalID(3);
    m.loadDefaultValue();
    // Detection never yields Q810 UK: such a card names itself Q810.
    const std::string name = modelType == m420model::Q810UK ? "Q810"
                             : (modelType >= 0 && modelType < m420model::Count) ? m.modelNameList()[modelType]
                                                                                 : "DVR-N530";
    m.setProduct_name(name);
    m.setChecksum(m.getSaveDataSize());
    m.setVersion("1.0.17");
    m.setSerial_number(name + "-0001");
    if (modelType == m420model::Q810 || modelType == m420model::Q810UK) m.setSerial_number(name);
    if (!m.saveData()) return fail("could not write setup.cfg");

    std::error_code ec;
    fs::copy_file(setting / "setup.cfg", setting / "default.cfg", fs::copy_options::overwrite_existing, ec);
    if (ec) return fail("could not write default.cfg: " + ec.message());
    if (!writeSettingTimeFile(root.string(), SettingTime{2026, 11, 21, 8, 30, 0, 540}))
        return fail("could not write time.dat");
    if (!writeText(setting / "lang" / "ver.dat",
                   "# " + name + " firmware 1.0.17\r\n# Language ISO Code:en fr es ko ja\r\n"))
        return fail("could not write ver.dat");
    return true;
}

}  // namespace tarvik::cardgen
