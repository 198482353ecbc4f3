<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en">
<context>
    <name>ApplicationContents</name>
    <message>
        <source>Kelvane 6</source>
        <translation>Kelvane 6</translation>
    </message>
    <message>
        <source>Kelvane 7</source>
        <translation>Kelvane 7</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Руководство</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Подключено</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Не подключено</translation>
    </message>
    <message>
        <source>Test mode</source>
        <translation>Тестовый режим</translation>
    </message>
    <message>
        <source>Mask on</source>
        <translation>Маска включена</translation>
    </message>
    <message>
        <source>Mask off</source>
        <translation>Маска выключена</translation>
    </message>
</context>
<context>
    <name>ButtonLayout</name>
    <message>
        <source>Battery</source>
        <translation>Батарея</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Сведения</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Отключение</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Подключение</translation>
    </message>
    <message>
        <source>Wait</source>
        <translation>Ждите</translation>
    </message>
    <message>
        <source>Mask</source>
        <translation>Маска</translation>
    </message>
    <message>
        <source>Fabric settings</source>
        <translation>Заводские настройки</translation>
    </message>
    <message>
        <source>on</source>
        <translation>включена</translation>
    </message>
    <message>
        <source>off</source>
        <translation>выключена</translation>
    </message>
    <message>
        <source>open</source>
        <translation>открыты</translation>
    </message>
    <message>
        <source>closed</source>
        <translation>закрыты</translation>
    </message>
</context>
<context>
    <name>ConfigFragment</name>
    <message>
        <source>Detection</source>
        <translation>Обнаружение</translation>
    </message>
    <message>
        <source>Scan mode</source>
        <translation>Режим сканирования</translation>
    </message>
    <message>
        <source>Radioscan frequence</source>
        <translation>Как часто сканируется эфир</translation>
    </message>
    <message>
        <source>AI mode</source>
        <translation>Режим ИИ</translation>
    </message>
    <message>
        <source>AI mode configure</source>
        <translation>Настройка режима ИИ</translation>
    </message>
    <message>
        <source>Efficient</source>
        <translation>Экономичный</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Стандартный</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Автоматический</translation>
    </message>
    <message>
        <source>Continuous</source>
        <translation>Непрерывный</translation>
    </message>
    <message>
        <source>AIDefault</source>
        <translation>По умолчанию</translation>
    </message>
    <message>
        <source>Mode &quot;Field&quot;</source>
        <translation>Режим «Поле»</translation>
    </message>
    <message>
        <source>Mode &quot;City&quot;</source>
        <translation>Режим «Город»</translation>
    </message>
    <message>
        <source>Alarm</source>
        <translation>Тревога</translation>
    </message>
    <message>
        <source>Voice alarm</source>
        <translation>Голосовое оповещение</translation>
    </message>
    <message>
        <source>Speak detection results</source>
        <translation>Озвучивать результаты обнаружения</translation>
    </message>
    <message>
        <source>Alarm level</source>
        <translation>Порог тревоги</translation>
    </message>
    <message>
        <source>Speech alert with signal level specified and higher</source>
        <translation>Голосовое оповещение при указанном уровне сигнала и выше</translation>
    </message>
    <message>
        <source>Early (-99)</source>
        <translation>Ранний (-99)</translation>
    </message>
    <message>
        <source>Medium (-94)</source>
        <translation>Средний (-94)</translation>
    </message>
    <message>
        <source>Late (-88)</source>
        <translation>Поздний (-88)</translation>
    </message>
    <message>
        <source>Sound volume</source>
        <translation>Громкость звука</translation>
    </message>
    <message>
        <source>Alarm sound volume</source>
        <translation>Громкость звука тревоги</translation>
    </message>
    <message>
        <source>Headphones volume</source>
        <translation>Громкость наушников</translation>
    </message>
    <message>
        <source>3.5 mm headphones volume</source>
        <translation>Громкость в наушниках 3,5 мм</translation>
    </message>
    <message>
        <source>Headphones output</source>
        <translation>Выход на наушники</translation>
    </message>
    <message>
        <source>3.5 mm headphones output mode</source>
        <translation>Режим выхода 3,5 мм</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Отключён</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Звук</translation>
    </message>
    <message>
        <source>EW management</source>
        <translation>Управление РЭБ</translation>
    </message>
    <message>
        <source>Sound alarm</source>
        <translation>Звуковая тревога</translation>
    </message>
    <message>
        <source>Vibro</source>
        <translation>Вибро</translation>
    </message>
    <message>
        <source>Vibro alarm</source>
        <translation>Тревога вибрацией</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>Интерфейс</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Яркость</translation>
    </message>
    <message>
        <source>Indication brightness</source>
        <translation>Яркость индикации</translation>
    </message>
    <message>
        <source>Display timeout</source>
        <translation>Отключение дисплея</translation>
    </message>
    <message>
        <source>Shut off the display for inactivity in seconds</source>
        <translation>Через сколько секунд бездействия гасить дисплей</translation>
    </message>
</context>
<context>
    <name>FocusRing</name>
    <message>
        <source>Not available</source>
        <translation>Недоступно</translation>
    </message>
</context>
<context>
    <name>HelpFragment</name>
    <message>
        <source>Mode: </source>
        <translation>Режим: </translation>
    </message>
    <message>
        <source>Efficient</source>
        <translation>Экономичный</translation>
    </message>
    <message>
        <source>Base</source>
        <translation>Базовый</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Автоматический</translation>
    </message>
    <message>
        <source>Continuous</source>
        <translation>Непрерывный</translation>
    </message>
    <message>
        <source>Frequency bands: </source>
        <translation>Диапазоны частот: </translation>
    </message>
    <message>
        <source>Indication brightness: </source>
        <translation>Яркость индикации: </translation>
    </message>
    <message>
        <source>Headphones volume: </source>
        <translation>Громкость наушников: </translation>
    </message>
    <message>
        <source>LED indication: </source>
        <translation>Световая индикация: </translation>
    </message>
    <message>
        <source>Sound indication: </source>
        <translation>Звуковая индикация: </translation>
    </message>
    <message>
        <source>Vibration: </source>
        <translation>Вибрация: </translation>
    </message>
    <message>
        <source>Wi-Fi scanning: </source>
        <translation>Сканирование Wi-Fi: </translation>
    </message>
    <message>
        <source>On</source>
        <translation>Вкл</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Выкл</translation>
    </message>
    <message>
        <source>Hardware: </source>
        <translation>Аппаратная часть: </translation>
    </message>
    <message>
        <source>Bootloader: </source>
        <translation>Загрузчик: </translation>
    </message>
    <message>
        <source>Firmware: </source>
        <translation>Прошивка: </translation>
    </message>
    <message>
        <source>Application: </source>
        <translation>Приложение: </translation>
    </message>
    <message>
        <source>Serial number: </source>
        <translation>Серийный номер: </translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Руководство</translation>
    </message>
</context>
<context>
    <name>LegendLayout</name>
    <message>
        <source>DIG</source>
        <translation>ЦИФРА</translation>
    </message>
</context>
<context>
    <name>MainLinuxWindow</name>
    <message>
        <source>Kelvane</source>
        <translation>Kelvane</translation>
    </message>
</context>
<context>
    <name>MainPage</name>
    <message>
        <source>No scan for %1 seconds</source>
        <translation>Нет сканирований %1 секунд</translation>
    </message>
    <message>
        <source>No signal</source>
        <translation>Нет сигнала</translation>
    </message>
    <message>
        <source>Strongest: </source>
        <translation>Самый сильный: </translation>
    </message>
    <message>
        <source>MHz</source>
        <translation>МГц</translation>
    </message>
    <message>
        <source>dB</source>
        <translation>дБ</translation>
    </message>
    <message>
        <source>Bars</source>
        <translation>Столбцы</translation>
    </message>
    <message>
        <source>Course</source>
        <translation>Ход сигнала</translation>
    </message>
    <message>
        <source>Persistence</source>
        <translation>Накопление</translation>
    </message>
    <message>
        <source>language</source>
        <translation>ru</translation>
    </message>
</context>
<context>
    <name>SettingsLayout</name>
    <message>
        <source>off</source>
        <translation>выключен</translation>
    </message>
    <message>
        <source>standard range</source>
        <translation>стандартный диапазон</translation>
    </message>
    <message>
        <source>wide range</source>
        <translation>широкий диапазон</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Звук</translation>
    </message>
    <message>
        <source>Vibro</source>
        <translation>Вибро</translation>
    </message>
    <message>
        <source>Dig</source>
        <translation>Цифра</translation>
    </message>
    <message>
        <source>Sens: </source>
        <translation>Чувств: </translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Низк</translation>
    </message>
    <message>
        <source>Mid</source>
        <translation>Сред</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Выс</translation>
    </message>
    <message>
        <source>AI: </source>
        <translation>ИИ: </translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Авто</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Оптим</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Поле</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Город</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Поделиться</translation>
    </message>
</context>
</TS>
