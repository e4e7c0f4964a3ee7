#include "rules/RuleFunctions.h"

namespace vifanalysis {

void CheckEnterUsbWithoutUsb4(const CComponentView& component, CReporter& reporter) {
  if (!component.IsYes("Enter_USB_Supported") || !component.IsNo("USB4_Supported")) return;
  reporter.Add(*component.Find("Enter_USB_Supported"),
               "Enter_USB_Supported is YES, but USB4_Supported is NO; for USB 2.0 and USB 3.2 the message is optional");
}

}  // namespace vifanalysis
