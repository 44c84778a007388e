// The M420 setting record: any bytes decode into the fields of every model
// type and encode back at that model's length.
#include <cstdint>
#include <cstdlib>

#include "core/settings/m420/m420_setting_manager.h"
#include "core/settings/m420/record_text.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static tarvik::M420SettingManager m;
    for (std::int64_t type = 0; type <= 5; ++type) {
        m.setModelType(type);
        m.setFirmwareVersionInt(size ? data[0] : 0);
        m.decodeFields(data, size, m.getSettingVariableCount(), type % 2 == 1);
        if (m.encodeRecord().size() != static_cast<std::size_t>(m.getSaveDataSize())) std::abort();
    }
    tarvik::recordtext::utf8UpToNul(data, size);
    tarvik::recordtext::leadingInteger(std::string_view(reinterpret_cast<const char*>(data), size));
    return 0;
}
