'''A UDisks2 service with one card, for python3-dbusmock's --template.

Parameters (JSON): device, mount_point, type, label, removable, fail_format, busy,
delay (seconds Format takes), marker (a file Format creates when it begins).
Every Format that succeeds is recorded as "device|type|label" in the
property Formats of the interface com.tarvik.Test on the block object.
'''

import os
import time

import dbus
from dbusmock import mockobject

BUS_NAME = 'org.freedesktop.UDisks2'
MAIN_OBJ = '/org/freedesktop/UDisks2/Manager'
MAIN_IFACE = 'org.freedesktop.UDisks2.Manager'
SYSTEM_BUS = True

BLOCK = 'org.freedesktop.UDisks2.Block'
FS = 'org.freedesktop.UDisks2.Filesystem'
DRIVE = 'org.freedesktop.UDisks2.Drive'
TEST = 'com.tarvik.Test'
ERROR = 'org.freedesktop.UDisks2.Error.'


def _bytes(text):
    return dbus.Array([dbus.Byte(b) for b in text.encode() + b'\0'], signature='y')


def _fail(name, message):
    raise dbus.exceptions.DBusException(message, name=ERROR + name)


def load(mock, parameters):
    p = {'device': '/dev/mmcblk9p1', 'mount_point': '/media/card', 'type': 'vfat', 'label': 'CARD',
         'removable': True, 'fail_format': False, 'busy': False, 'delay': 0, 'marker': ''}
    p.update(parameters)
    block_path = '/org/freedesktop/UDisks2/block_devices/' + os.path.basename(p['device'])
    drive_path = '/org/freedesktop/UDisks2/drives/Tarvik_Card_Reader'
    mounted = dbus.Array([_bytes(p['mount_point'])], signature='ay')

    mock.AddProperties(MAIN_IFACE, {'Version': dbus.String('2.9.4')})

    def resolve(self, spec, options):
        found = [dbus.ObjectPath(block_path)] if spec.get('path') == p['device'] else []
        return dbus.Array(found, signature='o')
    mock.AddMethod(MAIN_IFACE, 'ResolveDevice', 'a{sv}a{sv}', 'ao', resolve)

    mock.AddObject(drive_path, DRIVE, {'Removable': dbus.Boolean(p['removable']),
                                       'MediaRemovable': dbus.Boolean(p['removable']),
                                       'Ejectable': dbus.Boolean(p['removable'])}, [])
    mock.AddObject(block_path, BLOCK, {'Device': _bytes(p['device']), 'IdType': dbus.String(p['type']),
                                       'IdLabel': dbus.String(p['label']), 'Drive': dbus.ObjectPath(drive_path),
                                       'HintSystem': dbus.Boolean(False)}, [])
    block = mockobject.objects[block_path]
    block.AddProperties(FS, {'MountPoints': mounted})
    block.AddProperties(TEST, {'Formats': dbus.Array([], signature='s')})

    def is_mounted(self):
        return len(self.props[FS]['MountPoints']) > 0

    def unmount(self, options):
        if p['busy']:
            _fail('DeviceBusy', 'Error unmounting: target is busy')
        if not is_mounted(self):
            _fail('NotMounted', 'not mounted')
        self.props[FS]['MountPoints'] = dbus.Array([], signature='ay')

    def mount(self, options):
        if is_mounted(self):
            _fail('AlreadyMounted', 'already mounted')
        self.props[FS]['MountPoints'] = mounted
        return dbus.String(p['mount_point'])

    def format_(self, fs_type, options):
        if is_mounted(self):
            _fail('DeviceBusy', 'device is mounted')
        if p['marker']:
            open(p['marker'], 'w').close()
        time.sleep(float(p['delay']))
        if p['fail_format']:
            _fail('Failed', 'error wiping device')
        label = str(options.get('label', ''))
        self.props[BLOCK]['IdType'] = dbus.String(fs_type)
        self.props[BLOCK]['IdLabel'] = dbus.String(label)
        self.props[TEST]['Formats'].append(dbus.String('%s|%s|%s' % (p['device'], fs_type, label)))

    block.AddMethod(FS, 'Unmount', 'a{sv}', '', unmount)
    block.AddMethod(FS, 'Mount', 'a{sv}', 's', mount)
    block.AddMethod(BLOCK, 'Format', 'sa{sv}', '', format_)
